// The standard solver's reader: read on rank 0, replayed on rank 1, the echo line by line, the conformal-cooling
// repair.
//
// Byte 1: the switches below; then the file.
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string>

#include "fuzz/FuzzSupport.hpp"
#include "standalone/SerialCommunicator.h"
#include "stdcmp/CZEBKNstdCMPCompParm.h"
#include "tests/support/RecordingCommunicator.h"

namespace {

using namespace zebfuzz;
using Std = CZEBKNstdCMPCompParm;

constexpr char kFileName[] = "fuzz.cmp";

template <auto Getter>
double value(const Std& set) {
  return (set.*Getter)();
}

// Every value of the public interface.
// clang-format off
constexpr double (*kValues[])(const Std&) = {
    value<&Std::ilsolvU>, value<&Std::ilsolvV>, value<&Std::ilsolvW>, value<&Std::ilsolvP>, value<&Std::ilsolvF>,
    value<&Std::ilsolvT>, value<&Std::iNRestartIU>, value<&Std::iNRestartIV>, value<&Std::iNRestartIW>,
    value<&Std::iNRestartIP>, value<&Std::iPreCond>, value<&Std::iNiter>, value<&Std::iiterStep>,
    value<&Std::iijPresFix>, value<&Std::iijProb>, value<&Std::iNPPCorr>, value<&Std::iNiterGrad>,
    value<&Std::iNTimeStep>, value<&Std::iTimeStep>, value<&Std::ddt>, value<&Std::dBlendTime>, value<&Std::dtoler>,
    value<&Std::dBlendIU>, value<&Std::dBlendIV>, value<&Std::dBlendIW>, value<&Std::dBlendIP>, value<&Std::dBlendIF>,
    value<&Std::dBlendIT>, value<&Std::iNiterInIU>, value<&Std::iNiterInIV>, value<&Std::iNiterInIW>,
    value<&Std::iNiterInIP>, value<&Std::iNiterInIF>, value<&Std::iNiterInIT>, value<&Std::dtolerInIU>,
    value<&Std::dtolerInIV>, value<&Std::dtolerInIW>, value<&Std::dtolerInIP>, value<&Std::dtolerInIF>,
    value<&Std::dtolerInIT>, value<&Std::drelaxIU>, value<&Std::drelaxIV>, value<&Std::drelaxIW>,
    value<&Std::drelaxIP>, value<&Std::drelaxIF>, value<&Std::drelaxIT>, value<&Std::ilCmpChk>, value<&Std::dSRRelax>,
    value<&Std::dVisRelax>, value<&Std::iCouple_Type>, value<&Std::dnonOrthLimitFactor>,
    value<&Std::iDeleteMultiTimeVox>, value<&Std::iAutoHTC>, value<&Std::iOutput_HTC_Value>,
    value<&Std::iBarrelCompressible>, value<&Std::iAccelerationType>, value<&Std::nParticleSubDt>,
    value<&Std::iIsTurbFlow>, value<&Std::iIsOutputVP>, value<&Std::iVPSwitchByClampingLimit>, value<&Std::iKeepCCF>,
    value<&Std::iPassCCFField>, value<&Std::iW3FD3FFormat>, value<&Std::iFaceVisByHarmonicMean>,
    value<&Std::iIterNum_MeltFrontTemperature>, value<&Std::nSmooth_dP>, value<&Std::iMultipleGateMethod>,
    value<&Std::iMultipleGateDebug>, value<&Std::iMultipleGateType>, value<&Std::iMultipleGateByTimeStep>,
    value<&Std::dMultipleGateByVolume>, value<&Std::dMultipleGateByCtrlCRRatio>,
    value<&Std::iMultiGateOuteriteration>, value<&Std::dMultipleGateTolTargetQ>,
    value<&Std::dMultipleGateSPAdjustCoeff>, value<&Std::dMultipleGateTolInletQ>,
    value<&Std::dMultipleGateSPVariationLimit>,
};
// clang-format on

using Values = std::array<double, std::size(kValues)>;

Values valuesOf(const Std& set) {
  Values values;
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = kValues[i](set);
  return values;
}

template <auto Getter>
double& in(Values& values) {
  return values[static_cast<std::size_t>(std::find(kValues, std::end(kValues), value<Getter>) - kValues)];
}

// Two values that are not numbers are the same.
bool same(const Values& a, const Values& b) {
  const auto equal = [](double x, double y) { return x == y || (std::isnan(x) && std::isnan(y)); };
  return std::equal(a.begin(), a.end(), b.begin(), equal);
}

std::string nameLine() { return std::string(" CMP file name = ") + kFileName + "\n"; }

// The reader echoes the file's name and every line, whatever they hold, and nothing else.
std::string echoOf(std::string_view content) {
  std::string text = nameLine();
  for (const std::string_view line : wholeLines(content)) (text += " - CPUID:0 string: ").append(line) += '\n';
  return text;
}

struct Repaired {
  Values values{};
  std::string messages;
};

Repaired plainRepair(Values values, int mode) {
  Repaired result;
  const bool speaks = in<&Std::ilCmpChk>(values) != 0;
  const auto restore = [&](double& member, double before, double within, double after, const char* message) {
    if (!(std::fabs(member - before) < within)) return;
    member = after;
    if (speaks) result.messages += message;
  };
  double& tolerance = in<&Std::dtoler>(values);
  restore(tolerance, 0.01, 1e-6, 0.1, "\n>>> tol restored from 0.01 to 0.1\n\n");
  restore(in<&Std::dBlendIT>(values), 0.8, 0.001, 0.0, "\n>>> bT restored from 0.8 to 0.0\n\n");
  if (in<&Std::iCouple_Type>(values) == 1) {
    restore(in<&Std::drelaxIP>(values), 0.6, 0.001, 0.2, "\n>>> rp restored from 0.6 to 0.2\n\n");
  }
  if (mode == 1) {
    tolerance = 0.1;
    in<&Std::iNiterInIP>(values) = 20;
  }
  result.values = values;
  return result;
}

void checkRepair(Std& set, const Values& before, int mode) {
  Output::drop();
  require(set.modifyParm_ConformalCooling(mode) == 1, "modifyParm_ConformalCooling");
  const Repaired expected = plainRepair(before, mode);
  require(Output::take() == expected.messages, "the repair prints something else");
  require(same(valuesOf(set), expected.values), "the repair gives other values");
}

void check(std::string_view content, int mode, bool comparesSerial, bool readsTwice) {
  Files files;
  files.add(kFileName, content);
  const int readings = readsTwice ? 2 : 1;

  Std rank0;
  zeb::RecordingCommunicator recorder(2);
  require(rank0.setZEBCom(&recorder) == 1, "setZEBCom");
  for (int i = 0; i < readings; ++i) {
    require(rank0.setSolidFillBlock(kFileName) == 1, "setSolidFillBlock");
    require(Output::take() == echoOf(content).substr(0, Output::kLimit), "the echo is not the file");
  }
  if (!readsTwice) requireLineByLine(recorder.log(), content, true);
  const Values values = valuesOf(rank0);

  files.forbidOpening();
  Std rank1;
  zeb::ReplayingCommunicator player(recorder.log(), 1, 2, zeb::OnMismatch::kAbort);
  require(rank1.setZEBCom(&player) == 1, "setZEBCom");
  for (int i = 0; i < readings; ++i) rank1.setSolidFillBlock(kFileName);
  require(Output::take().empty(), "rank 1 prints");
  require(player.finished(), "rank 1 stopped too early");
  require(same(values, valuesOf(rank1)), "the ranks differ");
  files.allowOpening();

  if (comparesSerial && readsTheSameInSerial(content)) {
    Std serial;
    zeb::SerialCommunicator alone;
    require(serial.setZEBCom(nullptr) == -1 && serial.setZEBCom(&alone) == -2, "setZEBCom takes what it must refuse");
    for (int i = 0; i < readings; ++i) serial.setSolidFillBlock(kFileName);
    require(Output::take() == (readsTwice ? nameLine() + nameLine() : nameLine()), "a serial run echoes lines");
    require(same(values, valuesOf(serial)), "rank 0 and a serial run differ");
  }
  const Std copy(rank1);
  checkRepair(rank1, values, mode);
  require(same(valuesOf(copy), valuesOf(rank1)), "a copy does not share the parameters");
}

}  // namespace

void zebfuzz::checkInput(Bytes bytes) {
  const unsigned switches = bytes.byte();
  check(bytes.rest(), static_cast<int>(switches & 3u), (switches & 4u) != 0, (switches & 8u) != 0);
}
