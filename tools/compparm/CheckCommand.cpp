// compparm check: says what the formats forgive silently, before a job is queued.
#include <algorithm>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>

#include "inspect/check/Check.hpp"
#include "inspect/check/DiagnosticOutput.hpp"
#include "inspect/check/KnownNames.hpp"
#include "inspect/check/Manual.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

struct CheckArguments {
  AnalysisArguments analysis;
  std::vector<std::string> files, enabled, disabled;
  std::string format = "text";
  bool errors = false;
  bool manual = false;
};

void printText(const zeb::DiagnosticList& found, const std::string& severity) {
  for (const zeb::Diagnostic& one : found.all()) {
    std::cout << coloured(Colour::kBold, zeb::headline(one, severity)) << '\n'
              << zeb::excerpt(one) << "  hint: " << one.hint << '\n';
  }
  if (found.dropped() > 0) {
    std::cout << "and " << found.dropped() << " more; at most " << zeb::DiagnosticList::kMostPerRule
              << " of each rule are shown\n";
  }
}

// The names of files and keys may be no UTF-8: what is not is replaced.
void printDocument(const nlohmann::ordered_json& document) {
  std::cout << document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

struct OutputFormat {
  const char* name;
  void (*print)(const zeb::DiagnosticList& found, const std::string& severity);
};

constexpr OutputFormat kFormats[] = {
    {"text", printText},
    {"json", [](const auto& found, const auto& severity) { printDocument(diagnosticsAsJson(found.all(), severity)); }},
    {"sarif",
     [](const auto& found, const auto& severity) { printDocument(diagnosticsAsSarif(found.all(), severity)); }},
};

void printFindings(const CheckArguments& arguments, const zeb::DiagnosticList& found) {
  const auto format = std::find_if(std::begin(kFormats), std::end(kFormats),
                                   [&](const OutputFormat& candidate) { return arguments.format == candidate.name; });
  format->print(found, arguments.errors ? "error" : "warning");
}

std::vector<std::string_view> formatNames() {
  std::vector<std::string_view> names;
  for (const OutputFormat& format : kFormats) names.emplace_back(format.name);
  return names;
}

int run(const CheckArguments& arguments) {
  if (arguments.manual) {
    std::cout << zeb::rulesMarkdown();
    return kClean;
  }
  if (arguments.files.empty()) return fail("FILE is required");
  if (arguments.analysis.as.value_or(zeb::FileKind::kCmp) != zeb::FileKind::kCmp &&
      arguments.analysis.options != zeb::AnalysisOptions()) {
    return fail("--molding, --material, --wax, --viscoelastic and --no-repair have a meaning for CMP files only");
  }
  zeb::DiagnosticList found;
  for (const std::string& id : arguments.enabled) found.enable(*zeb::ruleNamed(id), true);
  for (const std::string& id : arguments.disabled) found.enable(*zeb::ruleNamed(id), false);
  int exitCode = kClean;
  for (const std::string& file : arguments.files) {
    const std::string reason = zeb::whyUnreadable(file);
    if (!reason.empty()) {
      exitCode = fail(std::string(file).append(": ").append(reason));
      continue;
    }
    const auto kind = arguments.analysis.as.value_or(zeb::recogniseKind(file).value_or(zeb::FileKind::kCmp));
    zeb::checkFile(file, kind, arguments.analysis.options, found);
  }
  found.sort();
  printFindings(arguments, found);
  if (exitCode != kClean) return exitCode;
  return found.all().empty() && found.dropped() == 0 ? kClean : kFindings;
}

}  // namespace

void addCheck(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<CheckArguments>();
  CLI::App* command = app.add_subcommand("check", "Report what a solver would silently ignore or misread");
  arguments->analysis.addTo(*command);
  // This command takes several files.
  command->remove_option(command->get_option("FILE"));
  command->add_option("FILE", arguments->files, "The parameter files");
  arguments->analysis.addKindTo(*command);
  std::vector<std::string> ids;
  for (const zeb::CheckRule* rule : zeb::checkRules()) ids.emplace_back(rule->id);
  const auto addRules = [&](const char* name, std::vector<std::string>& rules, const char* about) {
    command->add_option(name, rules, about)
        ->type_name("RULE")
        ->allow_extra_args(false)
        ->delimiter(',')
        ->check(CLI::IsMember(ids).description(""));
  };
  addRules("-W", arguments->enabled, "Switch a rule on that is off by default (equals-default)");
  addRules("--no-rule", arguments->disabled, "Switch a rule off");
  const std::vector<std::string_view> formats = formatNames();
  command->add_option("--format", arguments->format, zeb::orList(formats))
      ->check(CLI::IsMember(std::vector<std::string>(formats.begin(), formats.end())))
      ->type_name("FORMAT");
  command->add_flag("--rules", arguments->manual, "Print the manual of all rules, with examples");
  command->add_flag("--error-on-warning", arguments->errors, "Report findings as errors");
  runOnce(*command, exitCode, [arguments] { return run(*arguments); });
}

}  // namespace compparm
