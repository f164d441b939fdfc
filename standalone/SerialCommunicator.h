// The communicator of a run with a single rank: nothing to send, nobody to wait for.
#pragma once

#include "platform/ZEBCom.h"

namespace zeb {

class SerialCommunicator final : public CZEBCom {
 public:
  int GetCPUId() override { return 0; }
  int GetNCPU() override { return 1; }
  void Barrier() override {}
  void Broadi(int& /*value*/) override {}
  void Broadd(double& /*value*/) override {}
  void Broadc(char (&/*buffer*/)[255]) override {}
};

}  // namespace zeb
