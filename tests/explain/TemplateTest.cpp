// A template is whole, and reading it changes nothing.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "frame/CMPReader.hpp"
#include "frame/MoldingTypes.hpp"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/catalogue/Template.hpp"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "inspect/set/Values.hpp"
#include "inspect/trace/LineTrace.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/Tsv.hpp"

namespace {

struct Events final : zeb::TraceReader {
  std::set<std::string_view> opened;
  int problems = 0;
  void line(const zeb::ReadLine& line) override {
    using Part = zeb::ReadLine::Part;
    for (const zeb::Opening& opening : line.openings) {
      if (!opened.insert(opening.section->name).second) ++problems;
    }
    if (line.end && *line.end != zeb::SectionEnd::kClosed && *line.end != zeb::SectionEnd::kComplete) ++problems;
    if (line.part == Part::kKeyed && line.hits.empty() && !line.end) {
      ADD_FAILURE() << "line " << line.number << ": " << line.text;
    }
    if (line.part == Part::kPositional && line.expected > 0) {
      EXPECT_EQ(line.converted, line.expected) << "line " << line.number;
    }
    for (const zeb::Hit& hit : line.hits) {
      // A shorter key inside another key's line takes what it can of that key's value; its own line follows.
      const bool isOwnLine = hit.key.empty() || line.text.starts_with(hit.key);
      if (hit.sets() && isOwnLine && line.text[hit.key.size()] == ' ') {
        EXPECT_EQ(line.left(hit), "") << line.text;
      }
      EXPECT_TRUE(hit.outcome == zeb::KeyOutcome::kStored || hit.outcome == zeb::KeyOutcome::kConfirmed) << line.text;
    }
  }
};

void expectDefaults(const zeb::BlockTable& table, void* block) {
  void* defaults = table.create();
  for (const zeb::Section& section : table.sections) {
    for (const zeb::Row& row : section.rows) {
      EXPECT_EQ(zeb::valueOf(row, block), zeb::valueOf(row, defaults))
          << zeb::blockName(table.className) << "." << row.field.member;
    }
  }
  table.destroy(defaults);
}

void readCMP(const std::string& text, Events& events) {
  const zebtest::TemporaryFile file(text);
  const auto tool = zeb::moldingTypes()[0].create();
  zeb::LineTrace trace(events);
  tool->m_observer = &trace;
  {
    const zeb::OutputCapture quiet;
    zeb::readCMPFile(*tool, file.path());
    trace.finish();
  }
  for (const zeb::BlockEntry& entry : zeb::allBlocks()) expectDefaults(entry.table(), entry.locate(*tool));
}

void readCMX(const std::string& text, Events& events) {
  CZEBCMXInternalTool tool;
  zeb::LineTrace trace(events);
  tool.observer = &trace;
  std::istringstream stream(text);
  tool.readBlocks(stream);
  trace.finish();
  const auto tables = CZEBCMXInternalTool::tables();
  for (std::size_t i = 0; i < tables.size(); ++i) expectDefaults(*tables[i], tool.sections()[i].block);
}

std::set<std::string> dispatchedNames() {
  std::set<std::string> names;
  for (const zebtest::TsvRow& row : zebtest::readTsv("dispatch.tsv")) {
    const std::string opening = zebtest::unquoted(row.at("opening"));
    names.insert(opening.substr(1, opening.size() - 2));
  }
  return names;
}

TEST(CMPTemplate, ReadsBackToTheDefaultsAndOpensEverySection) {
  Events events;
  readCMP(zeb::templateText({}), events);
  std::set<std::string> opened(events.opened.begin(), events.opened.end());
  EXPECT_EQ(opened, dispatchedNames());
  EXPECT_EQ(events.problems, 0);
}

TEST(CMPTemplate, EachSectionAloneReadsBackToTheDefaults) {
  for (const std::string& name : dispatchedNames()) {
    Events events;
    readCMP(zeb::templateText({.molding = {}, .sections = {name}, .cmx = false}), events);
    EXPECT_EQ(events.opened.count(name), 1u) << name;
    EXPECT_EQ(events.problems, 0) << name;
  }
}

TEST(CMPTemplate, MoldingTypesOnlyAddComments) {
  for (int molding = 0; molding < std::ssize(zeb::moldingTypes()); ++molding) {
    Events events;
    readCMP(zeb::templateText({.molding = molding, .sections = {}, .cmx = false}), events);
    EXPECT_EQ(events.problems, 0) << molding;
  }
  const std::string gas = zeb::templateText({.molding = 6, .sections = {"ShortShot"}, .cmx = false});
  EXPECT_NE(gas.find("(molding type GAIM): times 4\n"), gas.npos) << gas;
}

TEST(CMPTemplate, LeavesToTheMoldingTypeWhatItChanges) {
  // Gas-assisted molding makes 4.4 of the time limit of 1.1.
  const std::string gas = zeb::templateText({.molding = 6, .sections = {"ShortShot"}, .cmx = false});
  EXPECT_EQ(gas.find("\nTimeLimit ="), gas.npos) << gas;
  EXPECT_NE(gas.find("it becomes 4.4"), gas.npos) << gas;
  const std::string plain = zeb::templateText({.molding = 0, .sections = {"ShortShot"}, .cmx = false});
  EXPECT_NE(plain.find("\nTimeLimit = 1.1\n"), plain.npos) << plain;
}

TEST(CMPTemplate, KeepsLinesBehindAShutGateAsComments) {
  const std::string text = zeb::templateText({.molding = {}, .sections = {"AutoVPCtrl"}, .cmx = false});
  EXPECT_NE(text.find("\nAutoVPMode = 0\n"), text.npos) << text;
  EXPECT_NE(text.find("\n#     EstCavityPres = 0.1\n"), text.npos) << text;
  EXPECT_EQ(text.find("\nEstCavityPres"), text.npos) << text;
}

TEST(Template, LinesFitAScreen) {
  for (const bool cmx : {false, true}) {
    std::istringstream text(zeb::templateText({.molding = {}, .sections = {}, .cmx = cmx}));
    for (std::string line; std::getline(text, line);) EXPECT_LE(line.size(), 120u) << line;
  }
}

TEST(CMPTemplate, NamesEveryKeyWithItsDescription) {
  const std::string text = zeb::templateText({});
  for (const zebtest::TsvRow& row : zebtest::readTsv("cmp_keys.tsv")) {
    if (row.at("read_index") == "-") continue;
    EXPECT_NE(text.find(zebtest::unquoted(row.at("key"))), text.npos) << row.at("key");
  }
}

TEST(CMPTemplate, LeavesOutSwitchesThatAMereWordTurnsOn) {
  const std::string text = zeb::templateText({.molding = {}, .sections = {"Whiteboard"}, .cmx = false});
  for (const char* word : {"HeatFluxHistory", "ElemagComsol", "ReadCoolantFromPCS", "OutputNonMatchingSTL",
                           "OutputAverageTemperature", "SensorHeatFlux"}) {
    EXPECT_NE(text.find("#   " + std::string(word)), text.npos) << word;
    EXPECT_EQ(text.find("\n" + std::string(word)), text.npos) << word;
  }
}

TEST(CMXTemplate, ReadsBackToTheDefaultsAndOpensEveryBlock) {
  Events events;
  readCMX(zeb::templateText({.molding = {}, .sections = {}, .cmx = true}), events);
  std::set<std::string> tags;
  for (const zebtest::TsvRow& row : zebtest::readTsv("cmx_keys.tsv")) tags.insert(row.at("tag"));
  EXPECT_EQ(std::set<std::string>(events.opened.begin(), events.opened.end()), tags);
  EXPECT_EQ(events.problems, 0);
}

TEST(CMXTemplate, EachBlockAloneReadsBackToTheDefaults) {
  for (const zeb::BlockTable* table : CZEBCMXInternalTool::tables()) {
    const std::string name(table->sections.front().name);
    Events events;
    readCMX(zeb::templateText({.molding = {}, .sections = {name}, .cmx = true}), events);
    EXPECT_EQ(events.opened.count(name), 1u) << name;
    EXPECT_EQ(events.problems, 0) << name;
  }
}

TEST(CMXTemplate, WritesTheEntriesOfAListThatHasDefaults) {
  const std::string text = zeb::templateText({.molding = {}, .sections = {"FILL_ADVANCED_LONGFIBER"}, .cmx = true});
  EXPECT_NE(text.find("\nDiffusionModelType = 0\nm_dFiber_CI = 0.01\nFlagFiberBreakage = 0\n"), text.npos) << text;
}

TEST(Template, TellsUnknownSections) {
  EXPECT_EQ(zeb::unknownTemplateSection({.molding = {}, .sections = {"Outlet", "Outlett"}, .cmx = false}), "Outlett");
  EXPECT_EQ(zeb::unknownTemplateSection({.molding = {}, .sections = {"outlet", "VER"}, .cmx = false}), "");
  EXPECT_EQ(zeb::unknownTemplateSection({.molding = {}, .sections = {"Outlet"}, .cmx = true}), "Outlet");
}

}  // namespace
