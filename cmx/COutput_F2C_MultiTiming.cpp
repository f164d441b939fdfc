// The merge of the default output grid with the CMX moments.
#include "cmx/COutput_F2C_MultiTiming.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "engine/TextOutput.hpp"

namespace {

constexpr int kMaxEntries = 1'000'000;
constexpr int kMinSplitNumber = 3;
constexpr double kFullPercent = 100.0;
constexpr double kToleranceOfSpan = 0.001;

constexpr int kOk = 0;
constexpr int kSplitNumberTooSmall = -1;
constexpr int kFillingTimeNotPositive = -2;
constexpr int kTimeOutOfRange = 1;
constexpr int kIdOutOfRange = 2;
constexpr int kNotAscending = 3;
constexpr int kNoSuchEntry = 4;

std::size_t index(int id) { return static_cast<std::size_t>(id); }

void printLine(bool wanted, const std::string& text) {
  if (wanted) zeb::writeOut(text + "\n");
}

// Whatever the debug mode: a schedule that differs from what was asked for must not pass in silence.
void printIfLimited(const char* what, int number) {
  printLine(number > kMaxEntries, std::string(what) + " is limited to " + std::to_string(kMaxEntries) +
                                      ". (current=" + std::to_string(number) + ")");
}

}  // namespace

// Entry 0 stands for the start of filling and the last entry for its end; both are left out of the result.
struct COutput_F2C_MultiTiming::Schedule {
  std::vector<double> moments{0.0};
  std::vector<bool> fromCMX{false};

  void append(double moment, bool isFromCMX) {
    moments.push_back(moment);
    fromCMX.push_back(isFromCMX);
  }
};

COutput_F2C_MultiTiming::COutput_F2C_MultiTiming()
    : m_dFillingTime(0.0),
      m_iDefaultSplitNumber(0),
      m_iCMXTimeCount(0),
      m_iOutputCount(0),
      m_bDebugMode(false),
      m_eOutputType(kSeconds) {}

COutput_F2C_MultiTiming::COutput_F2C_MultiTiming(const COutput_F2C_MultiTiming& other) = default;

COutput_F2C_MultiTiming::~COutput_F2C_MultiTiming() = default;

COutput_F2C_MultiTiming& COutput_F2C_MultiTiming::operator=(const COutput_F2C_MultiTiming& other) = default;

int COutput_F2C_MultiTiming::SetDebugMode(bool on) {
  m_bDebugMode = on;
  return kOk;
}

int COutput_F2C_MultiTiming::Input_Step1(double fillingTime, int splitNumber, int cmxCount, FillOutputType type) {
  m_dFillingTime = fillingTime;
  m_iDefaultSplitNumber = splitNumber;
  m_iCMXTimeCount = cmxCount;
  m_eOutputType = type;
  if (splitNumber < kMinSplitNumber) {
    printLine(m_bDebugMode,
              "Default split number should be greater than 2. (current=" + std::to_string(splitNumber) + ")");
    return kSplitNumberTooSmall;
  }
  printIfLimited("Default split number", splitNumber);  // also for a refused time: the grid is made all the same
  if (!(fillingTime > 0.0)) {
    printLine(m_bDebugMode,
              "Filling time should be greater than zero. (current=" + zeb::formatGeneral(fillingTime) + ")");
    return kFillingTimeNotPositive;
  }
  printIfLimited("Input CMX multi time count", cmxCount);
  m_pdCMXTime = std::make_shared<std::vector<double>>(index(std::clamp(cmxCount, 0, kMaxEntries)) + 1);
  return kOk;
}

int COutput_F2C_MultiTiming::Input_Step2(int id, double time) {
  if (!isInRange(time)) {
    printLine(m_bDebugMode, "Input CMX multi time(" + zeb::formatGeneral(time) + ") is out of range. ");
    return kTimeOutOfRange;
  }
  // Both at once, so only with a negative count: hosts rely on every other ID being accepted.
  if (id < 1 && id > m_iCMXTimeCount) {
    printLine(m_bDebugMode, "Input CMX multi time ID (" + std::to_string(id) + ") is out of range. ");
    return kIdOutOfRange;
  }
  if (id >= 1 && m_pdCMXTime && index(id) < m_pdCMXTime->size()) (*m_pdCMXTime)[index(id)] = time;
  return kOk;
}

int COutput_F2C_MultiTiming::Output_Step1(int& count) {
  const int status = CreateTiming();
  count = m_iOutputCount;
  return status;
}

int COutput_F2C_MultiTiming::Output_Step2(int i, double& time, int& source) const {
  if (i < 1 || i > m_iOutputCount) return kNoSuchEntry;
  time = (*m_pdOutputTime)[index(i)];
  source = (*m_piOutputSource)[index(i)];
  return kOk;
}

int COutput_F2C_MultiTiming::CreateTiming() {
  const int status = checkCMXTimes();
  printLine(m_bDebugMode, "CMX Filling files number =" + std::to_string(m_iCMXTimeCount) + " (after check)");
  printLine(m_bDebugMode, "Default F2C files number =" + std::to_string(m_iDefaultSplitNumber));
  storeResult(mergeTimes());
  return status;
}

// Shortens the count to the leading positive, ascending run. The array may be shorter than the count: a refused
// Input_Step1 changes the count alone.
int COutput_F2C_MultiTiming::checkCMXTimes() {
  const int kept = m_pdCMXTime ? static_cast<int>(m_pdCMXTime->size()) - 1 : 0;
  const int last = std::min(m_iCMXTimeCount, kept);
  int passed = 0;
  while (passed < last && (*m_pdCMXTime)[index(passed + 1)] > 0.0) ++passed;
  m_iCMXTimeCount = passed;
  for (int id = 1; id < m_iCMXTimeCount; ++id) {
    if ((*m_pdCMXTime)[index(id + 1)] > (*m_pdCMXTime)[index(id)]) continue;
    m_iCMXTimeCount = id;
    printLine(m_bDebugMode,
              "Input CMX multi output timing (ID:" + std::to_string(id) + ") is greater than next timing. ");
    return kNotAscending;
  }
  return kOk;
}

COutput_F2C_MultiTiming::Schedule COutput_F2C_MultiTiming::mergeTimes() const {
  Schedule schedule;
  const int steps = std::min(m_iDefaultSplitNumber, kMaxEntries);
  if (steps < 1) return schedule;
  const double span = isPercent() ? kFullPercent : m_dFillingTime;
  const double tolerance = span * kToleranceOfSpan;
  const double step = span / steps;
  const auto cmx = [this](int id) { return (*m_pdCMXTime)[index(id)]; };

  int id = 1;
  bool merged = false;
  double t = 0.0;
  const auto isAtGrid = [&] { return std::fabs(t - cmx(id)) < tolerance; };
  for (int number = 1; number <= steps; ++number) {
    t += step;  // accumulated: number * step would differ in the last digits
    if (id <= m_iCMXTimeCount && isAtGrid()) {
      ++id;
      merged = true;
    }
    for (; id <= m_iCMXTimeCount && cmx(id) < t; ++id) {
      if (isAtGrid()) {
        merged = true;
      } else {
        schedule.append(cmx(id), true);
      }
    }
    if (id <= m_iCMXTimeCount && isAtGrid()) {
      ++id;
      merged = true;
    }
    schedule.append(t, merged);
    merged = false;
  }
  return schedule;
}

void COutput_F2C_MultiTiming::storeResult(const Schedule& schedule) {
  m_iOutputCount = static_cast<int>(schedule.moments.size()) - 2;
  m_pdOutputTime = std::make_shared<std::vector<double>>(index(m_iOutputCount + 1));
  m_piOutputSource = std::make_shared<std::vector<int>>(index(m_iOutputCount + 1));
  int source = 0;
  for (int i = 1; i <= m_iOutputCount; ++i) {
    const double moment = schedule.moments[index(i)];
    const bool fromCMX = schedule.fromCMX[index(i)];
    (*m_pdOutputTime)[index(i)] = moment;
    if (fromCMX) (*m_piOutputSource)[index(i)] = --source;
    if (!m_bDebugMode) continue;
    printLine(true, "CreateTiming() iTime=" + std::to_string(i) + " : " + zeb::formatGeneral(moment) +
                        (fromCMX ? " sec (from CMX)" : " sec "));
  }
}

bool COutput_F2C_MultiTiming::isInRange(double time) const {
  if (isPercent()) return time > 0.0 && !(time > kFullPercent);
  if (m_eOutputType == kSeconds) return time > 0.0 && !(time > m_dFillingTime);
  return true;
}

bool COutput_F2C_MultiTiming::isPercent() const {
  return m_eOutputType == kPercent || m_eOutputType == kPercentOfVolume;
}
