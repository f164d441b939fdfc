// What no compiler can compare: the lists of blocks, sections and molding types with the blocks' tables, with the
// definition of the format, and with what the public headers tell. The other tests leave alone what tests/data do not
// know: these ask for the missing rows.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "frame/CMPReader.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "frame/MoldingTypes.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/Tsv.hpp"

namespace {

const std::string kRoot = ZEB_TEST_DATA_DIR "/../../";

// The classes that the public headers of a folder are named after.
std::set<std::string> headersIn(const std::string& folder, const std::string& prefix) {
  std::set<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(kRoot + folder)) {
    const std::string name = file.path().stem().string();
    if (file.path().extension() == ".h" && name.starts_with(prefix)) names.insert(name);
  }
  return names;
}

std::set<std::string> columnOf(const std::string& file, const std::string& column) {
  std::set<std::string> values;
  for (const zebtest::TsvRow& row : zebtest::readTsv(file)) values.insert(row.at(column));
  return values;
}

TEST(BlockList, IsThatOfTheDefinition) {
  const std::set<std::string> defined = columnOf("blocks.tsv", "class");
  std::set<std::string> listed;
  for (const zeb::BlockEntry& entry : zeb::allBlocks()) listed.emplace(entry.table().className);
  for (const std::string& name : listed) EXPECT_TRUE(defined.contains(name)) << "tests/data/blocks.tsv lacks " << name;
  for (const std::string& name : defined) EXPECT_TRUE(listed.contains(name)) << "ZEB_CMP_BLOCKS lacks " << name;
}

TEST(BlockList, HoldsEveryHeaderOfItsFolder) {
  std::set<std::string> listed;
  for (const zeb::BlockEntry& entry : zeb::allBlocks()) listed.emplace(entry.table().className);
  for (const std::string& name : headersIn("blocks", "CZEB")) {
    EXPECT_TRUE(listed.contains(name)) << "ZEB_CMP_BLOCKS lacks " << name;
  }
}

TEST(BlockList, DumpsTheBlocksThatHaveAHeading) {
  std::set<std::string_view> dumped;
  for (const zeb::BlockEntry& entry : zeb::dumpedBlocks()) dumped.insert(entry.table().className);
  for (const zeb::BlockEntry& entry : zeb::allBlocks()) {
    const zeb::BlockTable& table = entry.table();
    EXPECT_EQ(dumped.contains(table.className), !table.heading.empty()) << table.className;
  }
}

TEST(BlockList, HasNoOpeningTwice) {
  CZEBCMPIM cmp;
  CZEBCMXInternalTool cmx;
  std::map<std::string_view, int> openings;
  for (const zeb::DispatchEntry& entry : zeb::cmpSections(cmp)) ++openings[entry.section->open];
  for (const zeb::DispatchEntry& entry : cmx.sections()) ++openings[entry.section->open];
  for (const auto& [opening, times] : openings) EXPECT_EQ(times, 1) << opening;
}

TEST(CMXBlockList, HoldsEveryHeaderOfItsFolder) {
  std::set<std::string> listed;
  for (const zeb::BlockTable* table : CZEBCMXInternalTool::tables()) listed.emplace(table->className);
  for (const std::string& name : headersIn("cmx", "CZEBCMX_")) {
    EXPECT_TRUE(listed.contains(name)) << "ZEB_CMX_BLOCKS lacks " << name;
  }
}

TEST(CMXBlockList, IsThatOfTheDefinition) {
  const std::set<std::string> defined = columnOf("cmx_keys.tsv", "class");
  std::set<std::string> listed;
  for (const zeb::BlockTable* table : CZEBCMXInternalTool::tables()) listed.emplace(table->className);
  for (const std::string& name : listed) {
    EXPECT_TRUE(defined.contains(name)) << "tests/data/cmx_keys.tsv lacks " << name;
  }
  for (const std::string& name : defined) EXPECT_TRUE(listed.contains(name)) << "ZEB_CMX_BLOCKS lacks " << name;
}

TEST(SectionList, IsThatOfTheDefinition) {
  std::set<std::string> defined, listed;
  for (const std::string& opening : columnOf("dispatch.tsv", "opening")) defined.insert(zebtest::unquoted(opening));
  CZEBCMPIM cmp;
  for (const zeb::DispatchEntry& entry : zeb::cmpSections(cmp)) {
    listed.emplace(entry.section->open.empty() ? entry.opening() : entry.section->open);
  }
  for (const std::string& opening : listed) {
    EXPECT_TRUE(defined.contains(opening)) << "tests/data/dispatch.tsv (and what tells its keys) lacks " << opening;
  }
  for (const std::string& opening : defined) EXPECT_TRUE(listed.contains(opening)) << "no block reads " << opening;
}

TEST(MoldingTypeTable, IsThatOfTheDefinition) {
  std::map<std::string, std::string> defined;
  for (const zebtest::TsvRow& row : zebtest::readTsv("molding.tsv")) defined[row.at("code")] = row.at("name");
  const auto types = zeb::moldingTypes();
  for (std::size_t code = 0; code < types.size(); ++code) {
    const auto row = defined.find(std::to_string(code));
    ASSERT_NE(row, defined.end()) << "tests/data/molding.tsv lacks " << types[code].name << ", code " << code;
    EXPECT_EQ(row->second, types[code].name) << "code " << code;
  }
  for (int code = 0; code <= static_cast<int>(defined.size()); ++code) {
    const zeb::OutputCapture undefinedIsTold;
    const bool isDefined = CZEBKNCMPCompParm(code, 0).getGeneralParm() != nullptr;
    EXPECT_EQ(isDefined, code < static_cast<int>(defined.size())) << "kMoldingTypes, code " << code;
  }
}

// A host has nothing else to take the codes from.
TEST(MoldingTypeTable, IsToldByTheParameterSetsHeader) {
  std::string names;
  for (const zeb::MoldingType& type : zeb::moldingTypes()) {
    names += (names.empty() ? "" : ", ") + std::string(type.name);
  }
  const std::string header = zebtest::contentOf(kRoot + "frame/CZEBKNCMPCompParm.h");
  const std::string told = std::regex_replace(header, std::regex("\\s+///\\s+"), " ");
  EXPECT_NE(told.find("`moldingType`, counted from 0: " + names + ". "), told.npos) << "it must tell of " << names;
}

}  // namespace
