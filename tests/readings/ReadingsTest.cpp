// Short files and what reading them changes, prints and refuses: one test for each row of tests/data/*_readings.tsv.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "blocks/CZEBCMPMultiGateParm.h"
#include "blocks/CZEBCMPRTMParm.h"
#include "blocks/CZEBCMPUNFSettingParm.h"
#include "blocks/CZEBCMPVEParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/SetValues.hpp"
#include "tests/support/TestFolder.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::TsvRow;
using zebtest::unquoted;

struct Outcome {
  zebtest::Values before;
  zebtest::Values after;
  std::string printed;
};

enum class Kind { kCMP, kViscoelastic, kCMX, kStandard };

template <Kind kKind, class Set>
Outcome readInto(Set& set, CZEBCom* com, const std::string& file) {
  const zeb::OutputCapture capture;
  if (com != nullptr) {
    EXPECT_EQ(set.setZEBCom(com), 1);
  }
  static const zebtest::Values before = zebtest::valuesOf(zeb::blocksOf(set));
  EXPECT_EQ(set.setSolidFillBlock(file), 1);
  return {before, zebtest::valuesOf(zeb::blocksOf(set)), capture.text()};
}

constexpr double kUntouched = -77.0;

std::string listText(const std::vector<double>& entries) {
  std::string text = "[";
  for (const double entry : entries) text += (text.size() > 1 ? ", " : "") + zebtest::numberText(entry);
  return text + "]";
}

// Lists are copied out into the host's arrays, from entry 1 on and as many as the count says.
void expectListsAreCopiedOut(const CZEBKNCMPCompParm& set, const zebtest::Values& values) {
  const auto listOf = [&](const char* name) { return values.at(name) == "none" ? "[]" : values.at(name); };
  const auto sizeOf = [](int count) { return static_cast<std::size_t>(count) + 1; };

  std::vector<double> weights(sizeOf(set.getMultiGateParm()->iNumberofInletGroups()), kUntouched);
  EXPECT_EQ(set.getMultiGateParm()->InletWeightings(weights.data()), 1);
  EXPECT_EQ(weights[0], kUntouched);
  EXPECT_EQ(listText({weights.begin() + 1, weights.end()}), listOf("MultiGate.pdInletWeightings"));

  std::vector<int> inlets(sizeOf(set.getRTMParm()->iNVentInlet()), -77), again = inlets;
  EXPECT_EQ(set.getRTMParm()->getVentInletID(inlets.data()), 0);
  EXPECT_EQ(set.getRTMParm()->piVentInletID(again.data()), 0);
  EXPECT_EQ(inlets, again);
  EXPECT_EQ(inlets[0], -77);
  EXPECT_EQ(listText({inlets.begin() + 1, inlets.end()}), listOf("RTM.m_piVentInletID"));

  // Rows of three of which the first entry is unused.
  std::vector<std::array<double, 3>> points(sizeOf(set.getUNFSettingParm()->iNDispenserPass()));
  std::vector<double*> rows;
  for (auto& row : points) {
    row = {kUntouched, kUntouched, kUntouched};
    rows.push_back(row.data());
  }
  double speed = kUntouched;
  EXPECT_EQ(set.getUNFSettingParm()->dDispenser(rows.data(), speed), 1);
  EXPECT_EQ(zebtest::numberText(speed), values.at("UNFSetting.m_dDispenserSpeed"));
  std::vector<double> entries{0, 0};
  for (const auto& row : points) {
    EXPECT_EQ(row[0], kUntouched);
    if (&row != &points.front()) entries.insert(entries.end(), {0, row[1], row[2]});
  }
  EXPECT_EQ(points.front()[1], kUntouched);
  if (values.at("UNFSetting.m_pdDispenserPoint") != "none") {
    EXPECT_EQ(listText(entries), values.at("UNFSetting.m_pdDispenserPoint"));
  }
}

Outcome readCMP(CZEBCom* com, const std::string& file) {
  CZEBKNCMPCompParm set(0, 0);
  Outcome outcome = readInto<Kind::kCMP>(set, com, file);
  expectListsAreCopiedOut(set, outcome.after);
  return outcome;
}

// Of the file's companion, which lies beside it.
Outcome readViscoelastic(CZEBCom* com, const std::string& file) {
  CZEBKNCMPCompParm set(0, 0);
  set.getVEParm()->setIstoCalcRS(true);
  return readInto<Kind::kViscoelastic>(set, com, file);
}

Outcome readCMX(CZEBCom* com, const std::string& file) {
  CZEBKNCMXCompParm set(0);
  return readInto<Kind::kCMX>(set, com, file);
}

// This reader also names its file, and rank 0 of several its lines.
Outcome readStandard(CZEBCom* com, const std::string& file) {
  CZEBKNstdCMPCompParm set;
  Outcome outcome = readInto<Kind::kStandard>(set, com, file);
  const std::string name = " CMP file name = " + file + "\n";
  if (com == nullptr) {
    EXPECT_TRUE(outcome.printed.starts_with(name)) << outcome.printed;
  }
  outcome.printed.erase(0, com == nullptr ? name.size() : outcome.printed.size());
  return outcome;
}

struct Format {
  const char* extension;  // of the file that holds the text
  Outcome (*read)(CZEBCom* com, const std::string& file);
};

const Format kCMP{".cmp", &readCMP}, kViscoelastic{".vecmp", &readViscoelastic}, kCMX{".cmx", &readCMX},
    kStandard{".cmp", &readStandard};

struct Case {
  const Format* format;
  TsvRow row;
};

void PrintTo(const Case& test, std::ostream* out) { *out << test.row.at("case") << '\n' << test.row.at("text"); }

std::vector<std::string> entriesOf(const std::string& cell) {
  std::vector<std::string> entries;
  const std::string separator = "; ";
  for (std::size_t at = 0; cell != "-" && at < cell.size();) {
    const std::size_t end = std::min(cell.find(separator, at), cell.size());
    entries.push_back(cell.substr(at, end - at));
    at = end + separator.size();
  }
  std::sort(entries.begin(), entries.end());
  return entries;
}

std::string textOf(const TsvRow& row, const char* column) {
  return row.at(column) == "-" ? std::string() : unquoted(row.at(column));
}

class Reading : public testing::TestWithParam<Case> {
 protected:
  void expect(const Outcome& outcome, const std::string& printed) const {
    std::vector<std::string> changes = zebtest::differences(outcome.before, outcome.after);
    std::sort(changes.begin(), changes.end());
    EXPECT_EQ(changes, entriesOf(GetParam().row.at("changes")));
    EXPECT_EQ(outcome.printed, printed);
  }
  // What no rank but 0 opens.
  std::string otherFile() const { return m_folder.path("nobody's.cmp"); }

  zeb::test::TestFolder m_folder;
};

TEST_P(Reading, ChangesExactlyTheseValuesOnEveryRank) {
  const TsvRow& row = GetParam().row;
  const Format& format = *GetParam().format;
  const std::string prints = textOf(row, "prints"), refuses = textOf(row, "refuses");
  m_folder.write(std::string("run") + format.extension, textOf(row, "text"));
  const std::string file = m_folder.path(format.extension == kCMX.extension ? "run.cmx" : "run.cmp");
  {
    SCOPED_TRACE("serially");
    expect(format.read(nullptr, file), prints + refuses);
  }
  // A companion that is refused is written anew.
  m_folder.write(std::string("run") + format.extension, textOf(row, "text"));
  zeb::RecordingCommunicator first(3);
  {
    SCOPED_TRACE("on rank 0 of 3");
    expect(format.read(&first, file), prints + refuses);
  }
  SCOPED_TRACE("on rank 2 of 3");
  zeb::ReplayingCommunicator other(first.log(), 2, 3);
  expect(format.read(&other, otherFile()), prints);
  EXPECT_TRUE(other.finished());
}

std::vector<Case> casesOf(const Format& format, const std::string& fileName) {
  std::vector<Case> cases;
  for (TsvRow& row : zebtest::readTsv(fileName)) cases.push_back({&format, std::move(row)});
  return cases;
}

// "RTM: an entry without its key" becomes "RTM__an_entry_without_its_key"; the line in the table makes it unique.
std::string nameOf(const testing::TestParamInfo<Case>& test) {
  std::string name = test.param.row.at("case");
  std::replace_if(
      name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name + "_" + std::to_string(test.index + 2);
}

INSTANTIATE_TEST_SUITE_P(CMP, Reading, testing::ValuesIn(casesOf(kCMP, "cmp_readings.tsv")), nameOf);
INSTANTIATE_TEST_SUITE_P(CMX, Reading, testing::ValuesIn(casesOf(kCMX, "cmx_readings.tsv")), nameOf);
INSTANTIATE_TEST_SUITE_P(Standard, Reading, testing::ValuesIn(casesOf(kStandard, "std_readings.tsv")), nameOf);
INSTANTIATE_TEST_SUITE_P(Viscoelastic, Reading, testing::ValuesIn(casesOf(kViscoelastic, "ve_readings.tsv")), nameOf);

}  // namespace
