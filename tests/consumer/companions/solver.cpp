// Whatever a host's companion libraries are asked for.
#include <ZEBKNCompParm.h>

#include <cstdio>

namespace {

struct Communicator : CZEBCom {
  int calls = 0;
  int GetCPUId() override { return 0; }
  int GetNCPU() override { return 1; }
  void Barrier() override { ++calls; }
  void Broadi(int&) override { ++calls; }
  void Broadd(double&) override { ++calls; }
  void Broadc(char (&)[255]) override { ++calls; }
};

}  // namespace

extern "C" ZEB_VISIBLE int solve(const char* fileName) {
  Communicator communicator;
  CZEBKNCMPCompParm parameters(0, 0);
  parameters.setZEBCom(&communicator);
  if (parameters.setSolidFillBlock(fileName) != 1 || parameters.getGeneralParm()->dMassOut() != 0.75) return 1;
  if (communicator.calls > 0) std::printf("host: communicates\n");
  CZEBKNMaterialParam material;
  material.SetInput("pa", nullptr);
  if (material.GetZebMaterial()->iHeader[0] == 4711 && material.GetMtcData(0) != nullptr) std::printf("host: has it\n");
  CZEBKNProcessParam process;
  process.SetInput("", nullptr);
  return 0;
}
