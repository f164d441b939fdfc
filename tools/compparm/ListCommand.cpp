// compparm list: what can stand in a parameter file.
#include <algorithm>
#include <iostream>
#include <memory>

#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/set/Values.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/HelpText.hpp"
#include "tools/compparm/JsonText.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

using Entries = std::vector<const zeb::CatalogueEntry*>;

struct ListArguments {
  std::vector<std::string> words;
  std::string format;
};

void printJson(const Entries& entries) {
  Json list = Json::array();
  for (const zeb::CatalogueEntry* entry : entries) {
    const zeb::Row& row = *entry->row;
    Json json = {{"format", entry->format},
                 {"section", entry->sectionText()},
                 {"block", entry->block},
                 {"class", entry->table->className},
                 {"member", row.field.member},
                 {"getter", row.field.getter},
                 {"type", zeb::typeText(row)},
                 {"default", jsonOf(row, entry->defaultValue)},
                 {"unit", row.unit},
                 {"rules", zeb::ruleTexts(*entry)},
                 {"description", zeb::describe(row)}};
    if (!row.key.empty()) json["key"] = row.key;
    if (!row.otherKey.empty()) json["otherKey"] = row.otherKey;
    if (row.at[0].line > 0) json["position"] = zeb::positionText(row);
    list.push_back(std::move(json));
  }
  print(list);
}

std::string keyOf(const zeb::Row& row) {
  if (!row.key.empty()) return std::string(row.key);
  const std::string position = zeb::positionText(row);
  return position.empty() ? "-" : position;
}

void printText(const Entries& entries) {
  std::size_t keyWidth = 0, memberWidth = 0;
  for (const zeb::CatalogueEntry* entry : entries) {
    keyWidth = std::max(keyWidth, std::min<std::size_t>(keyOf(*entry->row).size(), 32));
    memberWidth = std::max(memberWidth, std::min<std::size_t>(entry->row->field.member.size(), 36));
  }
  const zeb::Section* section = nullptr;
  for (const zeb::CatalogueEntry* entry : entries) {
    if (entry->section != section) {
      std::cout << (section == nullptr ? "" : "\n") << coloured(Colour::kBold, entry->sectionText()) << "  "
                << coloured(Colour::kDim, std::string(entry->format) + ", block " + entry->block) << '\n';
      section = entry->section;
    }
    const zeb::Row& row = *entry->row;
    std::string facts = zeb::typeText(row) + ", default " + entry->defaultValue;
    if (!row.unit.empty()) facts += " " + std::string(row.unit);
    const std::string rules = zeb::joined(zeb::ruleTexts(*entry));
    if (!rules.empty()) facts += "; " + rules;
    std::cout << "  " << coloured(Colour::kCyan, padded(keyOf(row), keyWidth)) << "  "
              << padded(row.field.member, memberWidth) << "  " << facts << '\n';
    std::cout << "      " << coloured(Colour::kDim, zeb::describe(row)) << '\n';
  }
  std::cout << (section == nullptr ? "" : "\n") << entries.size()
            << (entries.size() == 1 ? " parameter.\n" : " parameters.\n");
}

int run(const ListArguments& arguments) {
  const Entries entries = zeb::searchCatalogue(arguments.words);
  if (arguments.format == "json") {
    printJson(entries);
  } else if (arguments.format == "markdown") {
    std::cout << zeb::catalogueMarkdown(entries);
  } else {
    printText(entries);
  }
  return entries.empty() ? kFindings : kClean;
}

}  // namespace

void addList(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<ListArguments>();
  CLI::App* command = app.add_subcommand("list", "Sections, keys, types, defaults, units and rules of the formats");
  command->add_option("WORDS", arguments->words, "Only what contains every word; case does not matter")->type_name("");
  addFormat(*command, arguments->format, {"text", "json", "markdown"});
  command->footer(examplesText({{"list", "everything"},
                                {"list outlet pressure", "what contains both words"},
                                {"list STD head", "the head of the standard solver"},
                                {"list --format markdown", "the manual of all keys"}}) +
                  "\nExit codes: 0, 1 when nothing is found.");
  runOnce(*command, exitCode, [arguments] { return run(*arguments); });
}

}  // namespace compparm
