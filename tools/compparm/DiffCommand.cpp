// compparm diff: what differs between two analyses in the values that the solver uses.
#include <iostream>
#include <memory>
#include <optional>

#include "inspect/explain/Difference.hpp"
#include "inspect/explain/Origins.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "inspect/set/ParameterFile.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/HelpText.hpp"
#include "tools/compparm/JsonText.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

struct DiffArguments {
  AnalysisArguments a;
  std::string otherFile;
  std::optional<int> againstMolding, againstMaterial;
  double tolerance = 0.0;
  std::string format;
};

struct Side {
  AnalysisArguments analysis;
  zeb::FileKind kind = zeb::FileKind::kCmp;
  zeb::ParameterFile file;
  zeb::Origins origins;
  std::vector<zeb::BlockSettings> settings;

  std::string title() const { return analysis.file + " (" + analysis.readAs(kind) + ")"; }
};

void read(Side& side) {
  const zeb::OutputCapture discarded;
  side.file = zeb::readTraced(side.analysis.file, side.kind, side.analysis.options, nullptr, side.origins);
  side.settings = zeb::settingsOf(side.file.blocks(), &side.origins);
}

Json sideOf(const zeb::Setting& setting) {
  return {{"value", jsonOf(*setting.row, setting.value)}, {"origin", setting.origin.text()}};
}

void printJson(const Side& a, const Side& b, const std::vector<zeb::Difference>& differences) {
  Json list = Json::array();
  for (const zeb::Difference& difference : differences) {
    Json json = {{"block", difference.block}, {"member", difference.a->member}};
    if (!difference.a->row->key.empty()) json["key"] = difference.a->row->key;
    json["a"] = sideOf(*difference.a);
    json["b"] = sideOf(*difference.b);
    list.push_back(std::move(json));
  }
  print({{"a", a.analysis.asJson(a.kind)}, {"b", b.analysis.asJson(b.kind)}, {"differences", std::move(list)}});
}

void printText(const Side& a, const Side& b, const std::vector<zeb::Difference>& differences) {
  std::cout << coloured(Colour::kRed, "- " + a.title()) << '\n' << coloured(Colour::kGreen, "+ " + b.title()) << '\n';
  for (const zeb::Difference& difference : differences) {
    std::cout << coloured(Colour::kBold, difference.block + "." + difference.a->member);
    if (!difference.a->row->key.empty()) std::cout << "  " << difference.a->row->key;
    std::cout << '\n'
              << "  - " << printable(difference.a->value) << "  " << coloured(Colour::kDim, difference.a->origin.text())
              << '\n'
              << "  + " << printable(difference.b->value) << "  " << coloured(Colour::kDim, difference.b->origin.text())
              << '\n';
  }
  std::cout << differences.size() << (differences.size() == 1 ? " parameter differs.\n" : " parameters differ.\n");
}

// Finds out the kinds of the sides too, once it is known that their files can be looked into.
std::string problemOf(const DiffArguments& arguments, Side& a, Side& b) {
  const bool hasOther = !arguments.otherFile.empty() || arguments.againstMolding || arguments.againstMaterial;
  if (!hasOther) return "diff needs a second file, --against-molding or --against-material";
  for (Side* side : {&a, &b}) {
    std::string problem = side->analysis.problem();
    if (!problem.empty()) return problem;
    side->kind = side->analysis.kind();
  }
  if (a.kind == b.kind) return {};
  return a.analysis.file + " is a " + std::string(zeb::formatOf(a.kind)) + " file and " + b.analysis.file + " a " +
         std::string(zeb::formatOf(b.kind)) + " file: they have no parameters in common";
}

int run(const DiffArguments& arguments) {
  Side a, b;
  a.analysis = b.analysis = arguments.a;
  if (!arguments.otherFile.empty()) b.analysis.file = arguments.otherFile;
  if (arguments.againstMolding) b.analysis.options.molding = *arguments.againstMolding;
  if (arguments.againstMaterial) b.analysis.options.material = *arguments.againstMaterial;
  const std::string problem = problemOf(arguments, a, b);
  if (!problem.empty()) return fail(problem);
  read(a);
  read(b);
  for (const Side* side : {&a, &b}) {
    const std::string& refusal = side->origins.refusal();
    if (!refusal.empty()) std::cerr << "compparm: the viscoelastic file is not taken: " << refusal << '\n';
  }
  const auto differences = zeb::differencesOf(a.settings, b.settings, arguments.tolerance);
  arguments.format == "json" ? printJson(a, b, differences) : printText(a, b, differences);
  return differences.empty() ? kClean : kFindings;
}

}  // namespace

void addDiff(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<DiffArguments>();
  CLI::App* command = app.add_subcommand("diff", "Compare the parameters that a solver would use, not the text");
  arguments->a.addTo(*command);
  command->add_option("OTHER", arguments->otherFile, "The file to compare with (default: the same)")->type_name("");
  arguments->a.addKindTo(*command);
  addMolding(
      *command, "--against-molding", [arguments](int code) { arguments->againstMolding = code; },
      "Molding type of the other side (default: the same)");
  command
      ->add_option("--against-material", arguments->againstMaterial,
                   "Material type of the other side (default: the same)")
      ->check(CLI::Range(0, 1).description(""))
      ->type_name("0|1");
  command
      ->add_option("--tolerance", arguments->tolerance,
                   "Numbers count as the same up to this part of the larger one (default 0: exactly)")
      ->check(CLI::Range(0.0, 1.0).description("from 0 to 1"))
      ->check([](const std::string& text) { return text.find_first_of("nN") == text.npos ? "" : "expects a number"; })
      ->type_name("REL");
  addFormat(*command, arguments->format, {"text", "json"});
  command->footer(examplesText({{"diff old.cmp new.cmp", "two files"},
                                {"diff old.cmx new.cmx --tolerance 1e-6", "numbers may differ in the last digits"},
                                {"diff part.cmp --molding IM --against-molding RTM", "one file, two molding types"},
                                {"diff part.cmp --against-material 1", "one file, two material types"}}) +
                  "\nExit codes: 0 the same, 1 different, 2 error.");
  runOnce(*command, exitCode, [arguments] { return run(*arguments); });
}

}  // namespace compparm
