// compparm explain: the whole chain of one parameter, from its default to the value that the solver uses.
#include <iostream>
#include <memory>

#include "inspect/Catalogue.hpp"
#include "inspect/History.hpp"
#include "inspect/OutputCapture.hpp"
#include "inspect/Settings.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/JsonText.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

constexpr std::string_view kFormat = "CMP";

struct ExplainArguments {
  AnalysisArguments analysis;
  std::string name;
  bool json = false;
};

struct Explained {
  const zeb::CatalogueEntry* entry;
  void* block;
};

// Control characters of the file must not reach the terminal.
std::string printable(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7f) {
      result += c;
    } else if (c == '\t') {
      result += "\\t";
    } else {
      result += std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 15u];
    }
  }
  return result;
}

std::string_view outcomeText(zeb::KeyOutcome outcome) {
  switch (outcome) {
    case zeb::KeyOutcome::kStored:
      return "stored";
    case zeb::KeyOutcome::kUnparsed:
      return "no value of this type: ignored";
    case zeb::KeyOutcome::kGated:
      return "the section's gate is closed: ignored";
    case zeb::KeyOutcome::kNotStored:
      return "nothing to store it in: ignored";
    case zeb::KeyOutcome::kRefused:
      return "no valid count: 0 is stored";
  }
  return {};
}

std::string_view kindText(zeb::HistoryStep::Kind kind) {
  switch (kind) {
    case zeb::HistoryStep::Kind::kLine:
      return "line";
    case zeb::HistoryStep::Kind::kList:
      return "list";
    case zeb::HistoryStep::Kind::kMissingField:
      return "missing field";
    case zeb::HistoryStep::Kind::kRepair:
      return "repair";
  }
  return {};
}

std::string place(const zeb::HistoryStep& step) {
  return (step.file.empty() ? "" : step.file + " ") + "line " + std::to_string(step.lineNumber);
}

Json jsonStep(const zeb::HistoryStep& step, const Explained& explained, const zeb::History& history) {
  const zeb::Row& row = *explained.entry->row;
  Json json = {{"kind", kindText(step.kind)}};
  if (step.kind == zeb::HistoryStep::Kind::kRepair) {
    json["condition"] = step.condition;
    json["before"] = jsonOf(row, step.before);
  } else {
    if (!step.file.empty()) json["file"] = step.file;
    json["line"] = step.lineNumber;
    json["text"] = step.line;
    json["outcome"] = outcomeText(step.outcome);
    if (!step.key.empty()) json["key"] = step.key;
    json["parsed"] = step.used;
    json["left"] = step.left;
    if (!step.listLines.empty()) json["listLines"] = step.listLines;
    const auto rules = zeb::ruleTexts(*step.section, *step.row);
    if (!rules.empty()) json["rules"] = rules;
    Json others = Json::array();
    for (const zeb::HistoryStep* other : history.othersOf(step)) {
      others.push_back({{"key", other->key},
                        {"member", other->target->field.member},
                        {"value", jsonOf(*other->target, other->after)},
                        {"outcome", outcomeText(other->outcome)}});
    }
    if (!others.empty()) json["sameLine"] = std::move(others);
  }
  json["value"] = jsonOf(row, step.after);
  return json;
}

Json describe(const Explained& explained, const zeb::History& history) {
  const zeb::CatalogueEntry& entry = *explained.entry;
  const zeb::Row& row = *entry.row;
  Json chain = Json::array();
  for (const zeb::HistoryStep* step : history.stepsOf(row, explained.block)) {
    chain.push_back(jsonStep(*step, explained, history));
  }
  Json json = {{"block", entry.block},           {"class", entry.table->className},
               {"section", entry.sectionText()}, {"sectionLines", history.openings(*entry.section)},
               {"member", row.field.member},     {"getter", row.field.getter}};
  if (!row.key.empty()) json["key"] = row.key;
  if (!row.otherKey.empty()) json["otherKey"] = row.otherKey;
  json["type"] = zeb::typeText(row);
  json["unit"] = row.unit;
  json["rules"] = zeb::ruleTexts(entry);
  json["description"] = row.doc;
  json["default"] = jsonOf(row, entry.defaultValue);
  json["chain"] = std::move(chain);
  json["value"] = jsonOf(row, zeb::valueOf(row, explained.block));
  return json;
}

void printHeading(const zeb::CatalogueEntry& entry) {
  const zeb::Row& row = *entry.row;
  std::cout << coloured(Colour::kBold, entry.name());
  if (!row.key.empty()) std::cout << "  key " << row.key;
  if (!row.otherKey.empty()) std::cout << " or " << row.otherKey;
  if (row.at[0].line > 0) std::cout << "  " << zeb::positionText(row);
  if (!entry.sectionText().empty()) std::cout << "  in " << entry.sectionText();
  std::cout << "\n  " << row.doc << "\n  " << zeb::typeText(row);
  if (!row.unit.empty()) std::cout << ", " << row.unit;
  const std::string rules = zeb::joined(zeb::ruleTexts(entry));
  if (!rules.empty()) std::cout << "; " << rules;
  std::cout << "\n\n";
}

std::string parsedText(const zeb::HistoryStep& step) {
  std::string text = "parsed \"" + printable(step.used) + "\"";
  if (!step.left.empty()) text += ", left over \"" + printable(step.left) + "\"";
  return text;
}

void printLineStep(const zeb::HistoryStep& step, const zeb::History& history) {
  std::cout << "  " << coloured(Colour::kCyan, place(step)) << "  " << printable(step.line) << '\n';
  if (step.kind == zeb::HistoryStep::Kind::kMissingField) {
    std::cout << "      the field is missing and counts as 0";
  } else if (step.kind == zeb::HistoryStep::Kind::kList) {
    std::cout << "      set by the list of " << step.key;
    for (const std::string& line : step.listLines) std::cout << "\n        " << printable(line);
  } else {
    std::cout << "      " << parsedText(step);
    if (step.outcome != zeb::KeyOutcome::kStored) std::cout << "; " << outcomeText(step.outcome);
  }
  const zeb::Rule& rule = step.row->rule;
  if (step.sets() && !rule.none()) std::cout << "; " << zeb::joined(zeb::ruleTexts(*step.section, *step.row));
  std::cout << '\n';
  for (const zeb::HistoryStep* other : history.othersOf(step)) {
    std::cout << coloured(Colour::kYellow, "      the same line holds " + other->key + " (" +
                                               std::string(other->target->field.member) + "): ")
              << (other->sets() ? printable(other->after) : std::string(outcomeText(other->outcome))) << '\n';
  }
}

void printText(const Explained& explained, const zeb::History& history) {
  const zeb::CatalogueEntry& entry = *explained.entry;
  printHeading(entry);
  std::cout << "  " << coloured(Colour::kCyan, "default") << "\n      -> " << printable(entry.defaultValue) << '\n';
  const auto steps = history.stepsOf(*entry.row, explained.block);
  bool touched = false;
  for (const zeb::HistoryStep* step : steps) {
    if (step->kind == zeb::HistoryStep::Kind::kRepair) {
      std::cout << "  " << coloured(Colour::kCyan, "repair") << "  " << step->condition
                << (step->before == step->after ? ": nothing to change" : "") << '\n';
    } else {
      printLineStep(*step, history);
      touched = true;
    }
    std::cout << "      -> " << printable(step->after) << '\n';
  }
  if (!touched) {
    const bool opened = !history.openings(*entry.section).empty() || entry.section->open.empty();
    std::cout << "  no line of the file sets it" << (opened ? "" : ": its section is not opened") << '\n';
  }
  std::cout << "  " << coloured(Colour::kBold, "final value  ")
            << coloured(Colour::kGreen, printable(zeb::valueOf(*entry.row, explained.block))) << "\n";
}

std::vector<Explained> explainedIn(const CZEBKNCMPCompParm& set,
                                   const std::vector<const zeb::CatalogueEntry*>& entries) {
  std::vector<Explained> all;
  for (const zeb::CatalogueEntry* entry : entries) {
    for (const zeb::BlockView& view : zeb::blocksOf(set)) {
      if (view.table == entry->table) all.push_back({entry, view.block});
    }
  }
  return all;
}

int failUnknown(const std::string& name) {
  std::string text = "no key or member is named " + name;
  std::string suggestions;
  for (const std::string& near : zeb::nearestNames(name, kFormat)) {
    suggestions += (suggestions.empty() ? "" : ", ") + near;
  }
  return fail(suggestions.empty() ? text : text + "; did you mean " + suggestions + "?");
}

int run(const ExplainArguments& arguments) {
  const std::string problem = arguments.analysis.problem();
  if (!problem.empty()) return fail(problem);
  const auto entries = zeb::findEntries(arguments.name, kFormat);
  if (entries.empty()) return failUnknown(arguments.name);
  zeb::History history;
  std::unique_ptr<CZEBKNCMPCompParm> set;
  {
    const zeb::OutputCapture discarded;
    set = zeb::analyse(arguments.analysis.file, arguments.analysis.options, nullptr, &history);
  }
  const std::vector<Explained> all = explainedIn(*set, entries);
  if (arguments.json) {
    Json list = Json::array();
    for (const Explained& explained : all) list.push_back(describe(explained, history));
    print({{"file", arguments.analysis.file},
           {"molding", arguments.analysis.moldingName()},
           {"material", arguments.analysis.options.material},
           {"parameters", std::move(list)}});
    return kClean;
  }
  if (all.size() > 1) std::cout << arguments.name << " names " << all.size() << " parameters.\n\n";
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (i > 0) std::cout << '\n';
    printText(all[i], history);
  }
  return kClean;
}

}  // namespace

void addExplain(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<ExplainArguments>();
  CLI::App* command = app.add_subcommand("explain", "Tell how one parameter came to its value");
  arguments->analysis.addTo(*command);
  command->add_option("NAME", arguments->name, "A key, member or getter, alone or as Block.member, Section.key")
      ->required();
  command
      ->add_option_function<std::string>(
          "--format", [arguments](const std::string& format) { arguments->json = format == "json"; }, "text or json")
      ->check(CLI::IsMember({"text", "json"}))
      ->type_name("FORMAT");
  command->callback([arguments, &exitCode] { exitCode = run(*arguments); });
}

}  // namespace compparm
