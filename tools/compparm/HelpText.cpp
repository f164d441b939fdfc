#include "tools/compparm/HelpText.hpp"

#include <algorithm>

#include "frame/MoldingTypes.hpp"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/catalogue/NearestNames.hpp"
#include "inspect/catalogue/Template.hpp"
#include "inspect/check/Rules.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

bool isOption(std::string_view word) { return word.size() > 1 && word.starts_with('-'); }

// "show, check or list"
std::string inWords(const std::vector<std::string>& names, std::string_view last) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? last : ", ";
    text += names[i];
  }
  return text;
}

std::vector<std::string> blockNames() {
  std::vector<std::string> names;
  for (const zeb::CatalogueEntry& entry : zeb::catalogue()) {
    names.push_back(entry.block);
    names.emplace_back(entry.section->name);
  }
  return names;
}

std::vector<std::string> parameterNames() {
  std::vector<std::string> names;
  for (const zeb::CatalogueEntry& entry : zeb::catalogue()) {
    for (const std::string_view name : {entry.row->key, entry.row->otherKey, entry.row->field.member}) {
      if (!name.empty()) names.emplace_back(name);
    }
  }
  return names;
}

std::vector<std::string> ruleIds() {
  std::vector<std::string> ids;
  for (const zeb::CheckRule* rule : zeb::checkRules()) ids.emplace_back(rule->id);
  return ids;
}

std::vector<std::string> sectionNames() {
  std::vector<std::string> names = zeb::templateSections(false);
  const std::vector<std::string> cmx = zeb::templateSections(true);
  names.insert(names.end(), cmx.begin(), cmx.end());
  return names;
}

const CLI::App* commandNamed(const CLI::App& app, const std::string& name) {
  for (const CLI::App* command : commandsOf(app)) {
    if (command->get_name() == name) return command;
  }
  return nullptr;
}

// How many words may follow the option as its values.
int valuesOf(const CLI::Option& option) { return option.get_items_expected_max(); }

}  // namespace

std::string examplesText(const std::vector<Example>& examples) {
  std::size_t width = 0;
  for (const Example& example : examples) width = std::max(width, example.line.size());
  std::string text = "Examples:";
  for (const Example& example : examples) {
    const std::string gap(width - example.line.size() + 2, ' ');
    text += "\n  compparm " + std::string(example.line) + gap + std::string(example.what);
  }
  return text;
}

std::string didYouMean(std::string_view name, const std::vector<std::string>& known) {
  const auto near = zeb::nearestOf(name, {known.begin(), known.end()});
  return near.empty() ? "" : "; did you mean " + inWords({near.begin(), near.end()}, " or ") + "?";
}

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App* command) { return !command->get_group().empty(); });
}

std::vector<std::string> moldingTypeNames() {
  std::vector<std::string> names;
  for (const zeb::MoldingType& type : zeb::moldingTypes()) names.emplace_back(type.name);
  return names;
}

std::vector<std::string> optionNames(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options()) {
    for (const std::string& name : option->get_snames()) names.push_back("-" + name);
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

std::vector<std::string> choicesOf(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  if (const auto open = type.find('{'); open != type.npos) {
    return split(std::string_view(type).substr(open + 1, type.find('}') - open - 1), ',');
  }
  const std::string name = type.substr(0, type.find(':'));
  if (name == "NAME|CODE") return moldingTypeNames();
  if (name == "BLOCK") return blockNames();
  if (name == "SECTION") return sectionNames();
  if (name == "RULE") return ruleIds();
  if (name == "PARAMETER") return parameterNames();
  return name == "0|1" ? split(name, '|') : std::vector<std::string>();
}

std::string problemOf(const CLI::App& app, const std::vector<std::string>& words, const std::string& parserText) {
  std::vector<std::string> commands;
  for (const CLI::App* known : commandsOf(app)) commands.push_back(known->get_name());
  const auto isWord = [](const std::string& word) { return !isOption(word); };
  const auto first = std::find_if(words.begin(), words.end(), isWord);
  const CLI::App* command = first == words.end() ? nullptr : commandNamed(app, *first);
  if (first != words.end() && command == nullptr) {
    const std::string suggestion = didYouMean(*first, commands);
    return "there is no command " + *first +
           (suggestion.empty() ? "; there are " + inWords(commands, " and ") : suggestion);
  }
  const std::string helped = command == nullptr ? "compparm" : "compparm " + command->get_name();
  const std::vector<std::string> names = optionNames(command == nullptr ? app : *command);
  for (const std::string& word : app.remaining(true)) {
    const std::string name = word.substr(0, word.find('='));
    if (!isOption(word) || std::find(names.begin(), names.end(), name) != names.end()) continue;
    return std::string(helped).append(" has no option ").append(name).append(didYouMean(name, names));
  }
  if (words.empty()) return "which command? " + inWords(commands, " or ") + "; compparm --help tells more";
  return parserText + "; " + helped + " --help tells more";
}

std::vector<std::string> completions(const CLI::App& app, const std::vector<std::string>& words) {
  if (words.empty()) return {};
  const std::string& current = words.back();
  std::vector<std::string> all;
  const CLI::App* command = commandNamed(app, words.front());
  if (words.size() == 1) {
    all = optionNames(app);
    for (const CLI::App* known : commandsOf(app)) all.push_back(known->get_name());
  } else if (command != nullptr) {
    const CLI::Option* open = nullptr;  // the option whose values the words are
    int wanted = 0;
    std::size_t positional = 0;
    for (auto word = words.begin() + 1; word != words.end() - 1; ++word) {
      if (*word == "=") continue;  // the shell hands "--option=value" over in three words
      if (isOption(*word)) {
        open = command->get_option_no_throw(*word);
        wanted = open == nullptr ? 0 : valuesOf(*open);
      } else if (wanted > 0) {
        --wanted;
      } else {
        ++positional;
      }
    }
    std::vector<const CLI::Option*> places;
    for (const CLI::Option* option : command->get_options()) {
      if (option->get_positional()) places.push_back(option);
    }
    if (isOption(current) || current == "-") {
      all = optionNames(*command);
    } else if (open != nullptr && wanted > 0) {
      all = choicesOf(*open);
    } else if (positional < places.size()) {
      all = choicesOf(*places[positional]);
    }
  }
  const std::string start = current == "=" ? "" : current;
  std::erase_if(all, [&](const std::string& name) { return !name.starts_with(start); });
  std::sort(all.begin(), all.end());
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

}  // namespace compparm
