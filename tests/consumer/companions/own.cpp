// A host's own companion libraries; each call says that it came here.
#include <ZEBKNCompParm.h>

#include <cstdio>
#include <string>

namespace {

void say(const char* what) { std::printf("host: %s\n", what); }

ZEB_MTC_Entry entry = {};
double value = 2.5;
ZEB_MTC curve = {1, 2, 1, &entry, &value};
ZebMaterial material = {};

}  // namespace

void CZEBFileIO::ZEBOpenFile(std::ifstream& stream, const char* fileName, ZEBOpenMode, int, int) {
  say("opens");
  stream.open(fileName);
}

ZebMaterial* ZebGetMaterial(const std::string&) {
  say("gives a material");
  material.iHeader[0] = 4711;
  return &material;
}

int ZebGetMTCInfo(ZebMaterial*, int&, int& count) {
  say("counts curves");
  count = 1;
  return 1;
}

const ZEB_MTC* ZebGetMTCData(ZebMaterial*, int) {
  say("gives a curve");
  return &curve;
}

void ZebReleaseMaterial(ZebMaterial*) { say("takes the material back"); }

ZEBG_DataEntryValueStorage::~ZEBG_DataEntryValueStorage() { say("ends a process"); }

ZEBG_SimulatorProcess::ZEBG_SimulatorProcess() { say("makes a process"); }
