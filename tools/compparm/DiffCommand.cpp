// compparm diff: what differs between two analyses in the values that the solver uses.
#include <iostream>
#include <memory>

#include "inspect/Difference.hpp"
#include "inspect/OutputCapture.hpp"
#include "inspect/Provenance.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/JsonText.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

struct DiffArguments {
  AnalysisArguments a;
  std::string otherFile;
  std::string againstMolding;
  int againstMaterial = -1;
  double tolerance = 0.0;
  bool json = false;
};

struct Side {
  AnalysisArguments analysis;
  std::unique_ptr<CZEBKNCMPCompParm> set;
  zeb::Provenance provenance;
  std::vector<zeb::BlockSettings> settings;

  std::string title() const {
    return analysis.file + " (" + analysis.moldingName() + ", material " + std::to_string(analysis.options.material) +
           ")";
  }
};

void read(Side& side) {
  const zeb::OutputCapture discarded;
  side.set = zeb::analyse(side.analysis.file, side.analysis.options, nullptr, &side.provenance);
  side.settings = zeb::settingsOf(zeb::blocksOf(*side.set), &side.provenance);
}

Json sideOf(const zeb::Setting& setting) {
  return {{"value", jsonOf(*setting.row, setting.value)}, {"origin", setting.origin.text()}};
}

Json describe(const Side& side) {
  return {{"file", side.analysis.file},
          {"molding", side.analysis.moldingName()},
          {"material", side.analysis.options.material}};
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
  print({{"a", describe(a)}, {"b", describe(b)}, {"differences", std::move(list)}});
}

void printText(const Side& a, const Side& b, const std::vector<zeb::Difference>& differences) {
  std::cout << coloured(Colour::kRed, "- " + a.title()) << '\n' << coloured(Colour::kGreen, "+ " + b.title()) << '\n';
  for (const zeb::Difference& difference : differences) {
    std::cout << coloured(Colour::kBold, difference.block + "." + difference.a->member);
    if (!difference.a->row->key.empty()) std::cout << "  " << difference.a->row->key;
    std::cout << '\n'
              << "  - " << difference.a->value << "  " << coloured(Colour::kDim, difference.a->origin.text()) << '\n'
              << "  + " << difference.b->value << "  " << coloured(Colour::kDim, difference.b->origin.text()) << '\n';
  }
  std::cout << differences.size() << (differences.size() == 1 ? " parameter differs.\n" : " parameters differ.\n");
}

int run(const DiffArguments& arguments) {
  Side a, b;
  a.analysis = b.analysis = arguments.a;
  if (!arguments.otherFile.empty()) b.analysis.file = arguments.otherFile;
  if (!arguments.againstMolding.empty()) {
    const auto code = zeb::moldingCode(arguments.againstMolding);
    if (!code) return fail("--against-molding expects one of " + zeb::moldingNames() + " or a code 0 to 14");
    b.analysis.options.molding = *code;
  }
  if (arguments.againstMaterial >= 0) b.analysis.options.material = arguments.againstMaterial;
  if (arguments.otherFile.empty() && arguments.againstMolding.empty() && arguments.againstMaterial < 0) {
    return fail("diff needs a second file, --against-molding or --against-material");
  }
  for (const Side* side : {&a, &b}) {
    const std::string problem = side->analysis.problem();
    if (!problem.empty()) return fail(problem);
  }
  read(a);
  read(b);
  const auto differences = zeb::differencesOf(a.settings, b.settings, arguments.tolerance);
  arguments.json ? printJson(a, b, differences) : printText(a, b, differences);
  return differences.empty() ? kClean : kFindings;
}

}  // namespace

void addDiff(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<DiffArguments>();
  CLI::App* command = app.add_subcommand("diff", "Compare the parameters that a solver would use, not the text");
  arguments->a.addTo(*command);
  command->add_option("OTHER", arguments->otherFile, "The file to compare with (default: the same)");
  command->add_option("--against-molding", arguments->againstMolding, "Molding type of the other side")
      ->type_name("NAME|CODE");
  command->add_option("--against-material", arguments->againstMaterial, "Material type of the other side")
      ->check(CLI::Range(0, 1))
      ->type_name("0|1");
  command
      ->add_option("--tolerance", arguments->tolerance,
                   "Numbers count as the same up to this part of the larger one (default 0: exactly)")
      ->check(CLI::Range(0.0, 1.0))
      ->type_name("REL");
  command
      ->add_option_function<std::string>(
          "--format", [arguments](const std::string& format) { arguments->json = format == "json"; }, "text or json")
      ->check(CLI::IsMember({"text", "json"}))
      ->type_name("FORMAT");
  command->callback([arguments, &exitCode] { exitCode = run(*arguments); });
}

}  // namespace compparm
