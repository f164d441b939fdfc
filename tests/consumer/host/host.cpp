// A solver's view of the library: public headers and C++11 only. Reads the file named on the command line and compares
// what the getters say with what that file holds.
#include <ZEBKNCompParm.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

int failures = 0;

void expect(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "host: expected %s\n", what);
  ++failures;
}

void checkLookups() {
  double number = 0.0;
  expect(GetKeyValueDouble("MassOut = 0.5", "MassOut", number) == 1 && number == 0.5, "MassOut to be found as 0.5");
  int count = 7;
  expect(GetKeyValueInt("AutoHTC = 1", "VentMode", count) == 0 && count == 7, "VentMode to be absent");
  std::string word;
  expect(GetKeyValueWord("Name = first second", "Name", word) == 1 && word == "first", "the word `first`");
  std::string text;
  expect(GetKeyValueString("Name = first second", "Name", text) == 1 && text == "first second", "the whole text");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::string fileName = argv[1];

  CZEBKNCMPCompParm parameters(0, 0);
  expect(parameters.setZEBCom(nullptr) == -1, "a null communicator to be refused");
  expect(parameters.setSolidFillBlock(fileName) == 1, "the file to be read");
  const CZEBCMPGeneralParm* general = parameters.getGeneralParm();
  expect(general->iAutoHTC() == 1, "AutoHTC 1");
  expect(general->dMassOut() == 0.75, "MassOut 0.75");
  const char* mesh = general->FirstMeshName();
  expect(mesh != nullptr && std::strcmp(mesh, "cover.mesh") == 0, "the first mesh's name");
  expect(general->SecondM3FName() == nullptr, "no second mesh");
  expect(general->dMax_HTC_Value() == 7500000.0, "the default of a key that the file lacks");
  expect(general->dTrapAirVolFilled() == 1.7, "TrapAirVolFilled as it was read");

  expect(parameters.modifyParameters() == 1, "the repairs to be done");
  expect(general->dTrapAirVolFilled() == 1.0, "TrapAirVolFilled to be clamped to 1");

  CZEBCMPGeneralParm copy;
  copy = *general;
  copy.SetOutputEOSc2f(3);
  expect(copy.iOutputEOSc2f() == 3 && general->iOutputEOSc2f() == 0, "a setter to change its own block only");

  checkLookups();
  return failures == 0 ? 0 : 1;
}
