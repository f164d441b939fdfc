// compparm explain: the whole chain of one parameter, from its default to the value that the solver uses.
#include <algorithm>
#include <iostream>
#include <memory>

#include "blocks/CZEBCMPVEParm.h"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/explain/History.hpp"
#include "inspect/explain/Settings.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/HelpText.hpp"
#include "tools/compparm/JsonText.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

struct ExplainArguments {
  AnalysisArguments analysis;
  std::string name;
  std::string format;
};

struct Explained {
  const zeb::CatalogueEntry* entry;
  void* block;
  bool companionIsUnread;                            // the file that would set it was not asked for
  std::vector<const zeb::CatalogueEntry*> elements;  // of an array asked for as a whole; empty: the entry alone

  bool isArray() const { return !elements.empty(); }
  std::string description() const {
    return isArray() ? "An array; each of the keys sets one element." : zeb::describe(*entry->row);
  }
  std::string type() const { return isArray() ? "doubles" : zeb::typeText(*entry->row); }
  std::vector<const zeb::HistoryStep*> steps(const zeb::History& history) const {
    using Elements = zeb::History::Elements;
    return history.stepsOf(*entry->row, block, isArray() ? Elements::kAll : Elements::kOwn);
  }
};

std::string_view outcomeText(zeb::KeyOutcome outcome) {
  switch (outcome) {
    case zeb::KeyOutcome::kStored:
    case zeb::KeyOutcome::kConfirmed:
      return "stored";
    case zeb::KeyOutcome::kUnparsed:
      return "no value of this type: ignored";
    case zeb::KeyOutcome::kGated:
      return "the section's gate is closed: ignored";
    case zeb::KeyOutcome::kNotStored:
      return "nothing to store it in: ignored";
    case zeb::KeyOutcome::kNotTaken:
      return "the value is not taken";
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
    case zeb::HistoryStep::Kind::kNotTaken:
      return "field not taken";
    case zeb::HistoryStep::Kind::kRefused:
      return "refused";
    case zeb::HistoryStep::Kind::kRepair:
      return "repair";
  }
  return {};
}

std::string place(const zeb::HistoryStep& step) {
  if (step.lineNumber == 0) return step.file;
  return (step.file.empty() ? "" : step.file + " ") + "line " + std::to_string(step.lineNumber);
}

// The place of a member's field in its positional line; 0 where it has none there.
int fieldOf(const zeb::Row& row, int positionalLine) {
  for (const zeb::Position at : row.at) {
    if (at.line == positionalLine) return at.field;
  }
  return 0;
}

// "line 5, field 3 of [FastCool]"
std::string fieldText(const zeb::HistoryStep& step) {
  return "line " + std::to_string(step.positionalLine) + ", field " +
         std::to_string(fieldOf(*step.row, step.positionalLine)) + " of " +
         (step.section->headVersion != 0 || step.section->open.empty() ? "the head" : std::string(step.section->open));
}

// Why a head or section is not read; a version line does not know the head that it fails to announce.
std::string reasonText(const zeb::HistoryStep& step, const Explained& explained) {
  if (step.section != nullptr) return step.reason;
  return step.reason + "; the head is read behind version " + std::to_string(explained.entry->section->headVersion) +
         " alone";
}

Json sameLine(const zeb::HistoryStep& step) {
  Json others = Json::array();
  for (const zeb::HistoryStep::Other& other : step.others) {
    others.push_back({{"key", other.key},
                      {"member", other.row->field.member},
                      {"value", jsonOf(*other.row, other.after)},
                      {"outcome", outcomeText(other.outcome)}});
  }
  return others;
}

Json jsonStep(const zeb::HistoryStep& step, const Explained& explained) {
  using Kind = zeb::HistoryStep::Kind;
  const zeb::Row& row = *explained.entry->row;
  Json json = {{"kind", kindText(step.kind)}};
  if (step.leftOut > 0) json["leftOut"] = step.leftOut;
  if (step.kind == Kind::kRepair) {
    json["condition"] = step.condition;
    json["before"] = jsonOf(row, step.before);
    json["value"] = jsonOf(row, step.after);
    return json;
  }
  if (!step.file.empty()) json["file"] = step.file;
  json["line"] = step.lineNumber;
  json["text"] = step.line;
  if (step.positionalLine > 0) json["field"] = fieldText(step);
  if (!step.reason.empty()) json["reason"] = reasonText(step, explained);
  if (step.kind == Kind::kLine || step.kind == Kind::kList) {
    json["outcome"] = outcomeText(step.outcome);
    if (!step.key.empty()) json["key"] = step.key;
    json["parsed"] = step.used;
    json["left"] = step.left;
    if (!step.listLines.empty()) json["listLines"] = step.listLines;
  }
  if (step.row != nullptr) {
    const auto rules = zeb::ruleTexts(*step.section, *step.row);
    if (!rules.empty()) json["rules"] = rules;
  }
  Json others = sameLine(step);
  if (!others.empty()) json["sameLine"] = std::move(others);
  if (!step.after.empty()) json["value"] = jsonOf(row, step.after);
  return json;
}

// Whether the value is none of those that the steps, the default before them, have given.
bool isDerived(const Explained& explained, const std::vector<const zeb::HistoryStep*>& steps) {
  if (explained.entry->row->isElement()) return false;
  const std::string value = zeb::valueOf(*explained.entry->row, explained.block);
  return value != explained.entry->defaultValue &&
         std::none_of(steps.begin(), steps.end(), [&](const zeb::HistoryStep* step) { return step->after == value; });
}

Json describe(const Explained& explained, const zeb::History& history) {
  const zeb::CatalogueEntry& entry = *explained.entry;
  const zeb::Row& row = *entry.row;
  Json chain = Json::array();
  for (const zeb::HistoryStep* step : explained.steps(history)) {
    chain.push_back(jsonStep(*step, explained));
  }
  Json json = {{"block", entry.block},           {"class", entry.table->className},
               {"section", entry.sectionText()}, {"sectionLines", history.openings(*entry.section)},
               {"member", row.field.member},     {"getter", row.field.getter}};
  if (explained.isArray()) {
    json["keys"] = Json::array();
    for (const zeb::CatalogueEntry* element : explained.elements) json["keys"].push_back(element->row->key);
  } else if (!row.key.empty()) {
    json["key"] = row.key;
  }
  if (!row.otherKey.empty()) json["otherKey"] = row.otherKey;
  if (row.at[0].line > 0) json["position"] = zeb::positionText(row);
  json["type"] = explained.type();
  json["unit"] = row.unit;
  json["rules"] = zeb::ruleTexts(entry);
  json["description"] = explained.description();
  json["default"] = jsonOf(row, entry.defaultValue);
  json["chain"] = std::move(chain);
  json["derived"] = isDerived(explained, explained.steps(history));
  json["value"] = jsonOf(row, zeb::valueOf(row, explained.block));
  return json;
}

void printHeading(const Explained& explained) {
  const zeb::CatalogueEntry& entry = *explained.entry;
  const zeb::Row& row = *entry.row;
  std::cout << coloured(Colour::kBold, entry.name());
  if (!row.key.empty()) std::cout << (explained.isArray() ? "  keys " : "  key ") << row.key;
  for (const zeb::CatalogueEntry* element : explained.elements) {
    if (element != &entry) std::cout << ", " << element->row->key;
  }
  if (!row.otherKey.empty()) std::cout << " or " << row.otherKey;
  if (row.at[0].line > 0) std::cout << "  " << zeb::positionText(row);
  if (!entry.sectionText().empty()) std::cout << "  in " << entry.sectionText();
  std::cout << "\n  " << explained.description() << "\n  " << explained.type();
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

void printOthers(const zeb::HistoryStep& step) {
  for (const zeb::HistoryStep::Other& other : step.others) {
    const bool sets = other.outcome == zeb::KeyOutcome::kStored || other.outcome == zeb::KeyOutcome::kRefused;
    std::cout << coloured(Colour::kYellow, "      the same line holds " + std::string(other.key) + " (" +
                                               std::string(other.row->field.member) + "): ")
              << (sets ? printable(other.after) : std::string(outcomeText(other.outcome))) << '\n';
  }
}

void printLineStep(const zeb::HistoryStep& step, const Explained& explained) {
  using Kind = zeb::HistoryStep::Kind;
  std::cout << "  " << coloured(Colour::kCyan, place(step)) << "  " << printable(step.line) << "\n      ";
  if (step.positionalLine > 0) std::cout << fieldText(step) << ": ";
  switch (step.kind) {
    case Kind::kMissingField:
      std::cout << step.reason << "; " << (step.sets() ? "the field counts as 0" : "the value stays");
      break;
    case Kind::kNotTaken:
      std::cout << step.reason << "; the value stays";
      break;
    case Kind::kRefused:
      std::cout << coloured(Colour::kYellow, "not read: ") << reasonText(step, explained);
      break;
    case Kind::kList:
      std::cout << (step.key.empty() ? "set by the list" : "set by the list of " + step.key);
      for (const std::string& line : step.listLines) std::cout << "\n        " << printable(line);
      if (step.row->list.lastIsRest)
        std::cout << "\n        the last one is one minus the others, whatever its line says";
      break;
    default:
      std::cout << (step.reason.empty() ? parsedText(step) : step.reason);
      if (step.outcome != zeb::KeyOutcome::kStored && step.outcome != zeb::KeyOutcome::kConfirmed)
        std::cout << "; " << outcomeText(step.outcome);
  }
  if (step.kind == Kind::kLine && step.sets() && !step.row->rule.none()) {
    std::cout << "; " << zeb::joined(zeb::ruleTexts(*step.section, *step.row));
  }
  std::cout << '\n';
  printOthers(step);
}

// Whether a file has a place for the member.
bool isSettable(const zeb::CatalogueEntry& entry) {
  const zeb::Row& row = *entry.row;
  const auto listFillsIt = [&](const zeb::Row& other) { return zeb::fills(other, row); };
  return !row.key.empty() || row.at[0].line > 0 ||
         std::any_of(entry.section->rows.begin(), entry.section->rows.end(), listFillsIt);
}

std::string_view whyUntouched(const Explained& explained, const zeb::History& history) {
  const zeb::CatalogueEntry& entry = *explained.entry;
  if (!isSettable(entry)) return ": it has neither key nor place in a file";
  if (explained.companionIsUnread) return ": it stands in the companion file, which --viscoelastic reads";
  const bool opened = !history.openings(*entry.section).empty() || entry.section->open.empty();
  return opened ? "" : ": its section is not opened";
}

void printText(const Explained& explained, const zeb::History& history) {
  const zeb::CatalogueEntry& entry = *explained.entry;
  printHeading(explained);
  std::cout << "  " << coloured(Colour::kCyan, "default") << "\n      -> " << printable(entry.defaultValue) << '\n';
  bool touched = false;
  const std::vector<const zeb::HistoryStep*> steps = explained.steps(history);
  for (const zeb::HistoryStep* step : steps) {
    if (step->leftOut > 0) {
      std::cout << "  ... " << step->leftOut << (step->leftOut == 1 ? " step that is" : " steps that are")
                << " not kept\n";
    }
    if (step->kind == zeb::HistoryStep::Kind::kRepair) {
      std::cout << "  " << coloured(Colour::kCyan, "repair") << "  " << step->condition
                << (step->before == step->after ? ": nothing to change" : "") << '\n';
    } else {
      printLineStep(*step, explained);
      touched = true;
    }
    if (!step->after.empty()) std::cout << "      -> " << printable(step->after) << '\n';
  }
  if (isDerived(explained, steps)) {
    std::cout << "  " << coloured(Colour::kCyan, "derived") << "  from other members, or set by the host\n";
  } else if (!touched) {
    std::cout << "  no line of the file sets it" << whyUntouched(explained, history) << '\n';
  }
  std::cout << "  " << coloured(Colour::kBold, "final value  ")
            << coloured(Colour::kGreen, printable(zeb::valueOf(*entry.row, explained.block))) << "\n";
}

bool isOneArray(const Explained& explained, const zeb::CatalogueEntry& entry, void* block) {
  const zeb::Row &first = *explained.entry->row, &other = *entry.row;
  return first.isElement() && other.isElement() && first.field.locate(explained.block) == other.field.locate(block);
}

// Elements of one array are told as the array.
void addTo(std::vector<Explained>& all, Explained explained) {
  if (all.empty() || !isOneArray(all.back(), *explained.entry, explained.block)) {
    return all.push_back(std::move(explained));
  }
  Explained& array = all.back();
  if (!array.isArray()) array.elements.push_back(array.entry);
  array.elements.push_back(explained.entry);
}

std::vector<Explained> explainedIn(const zeb::ParameterFile& file,
                                   const std::vector<const zeb::CatalogueEntry*>& entries,
                                   const ExplainArguments& arguments) {
  const bool readsCompanion = arguments.analysis.options.viscoelastic;
  std::vector<Explained> all;
  for (const zeb::CatalogueEntry* entry : entries) {
    for (const zeb::BlockView& view : file.blocks()) {
      if (view.table != entry->table) continue;
      const bool isInCompanion = view.table == &zeb::tableOf<CZEBCMPVEParm>();
      addTo(all, {entry, view.block, isInCompanion && !readsCompanion, {}});
    }
  }
  return all;
}

int failUnknown(const std::string& name, zeb::FileKind kind) {
  std::string text = "no key or member of a " + std::string(zeb::formatOf(kind)) + " file is named " + name;
  for (const zeb::FileKind other : {zeb::FileKind::kCmp, zeb::FileKind::kCmx, zeb::FileKind::kStd}) {
    if (other == kind || zeb::findEntries(name, zeb::formatOf(other)).empty()) continue;
    return fail(text + "; --as " + std::string(zeb::kindName(other)) + " knows it");
  }
  return fail(text + didYouMean(name, zeb::nearestNames(name, zeb::formatOf(kind))));
}

int run(const ExplainArguments& arguments) {
  const std::string problem = arguments.analysis.problem();
  if (!problem.empty()) return fail(problem);
  const zeb::FileKind kind = arguments.analysis.kind();
  const auto entries = zeb::findEntries(arguments.name, zeb::formatOf(kind));
  if (entries.empty()) return failUnknown(arguments.name, kind);
  std::vector<const zeb::Row*> rows;
  rows.reserve(entries.size());
  for (const zeb::CatalogueEntry* entry : entries) rows.push_back(entry->row);
  zeb::History history(rows);
  zeb::ParameterFile file;
  {
    const zeb::OutputCapture discarded;
    file = zeb::readTraced(arguments.analysis.file, kind, arguments.analysis.options, nullptr, history);
  }
  const std::vector<Explained> all = explainedIn(file, entries, arguments);
  if (arguments.format == "json") {
    Json list = Json::array();
    for (const Explained& explained : all) list.push_back(describe(explained, history));
    Json document = arguments.analysis.asJson(kind);
    document["parameters"] = std::move(list);
    print(document);
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
      ->required()
      ->type_name("PARAMETER");
  arguments->analysis.addKindTo(*command);
  addFormat(*command, arguments->format, {"text", "json"});
  command->footer(examplesText({{"explain part.cmp AirPressure", "from its default to the final value"},
                                {"explain part.cmp ShortShot.TimeLimit --molding GAIM", "with that type's repairs"},
                                {"explain part.cmp General.VentMode --format json", "for scripts"},
                                {"explain part.cmx Level1", "of the analysis settings"},
                                {"explain part.cmp ddt --as std", "as the standard solver reads it"}}));
  runOnce(*command, exitCode, [arguments] { return run(*arguments); });
}

}  // namespace compparm
