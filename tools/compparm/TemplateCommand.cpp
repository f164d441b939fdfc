// compparm template: a file with every key at its default.
#include <iostream>
#include <memory>

#include "inspect/catalogue/Template.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/HelpText.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

int run(const zeb::TemplateOptions& options) {
  if (options.cmx && options.molding) return fail("a CMX file does not depend on the molding type");
  const std::string unknown = zeb::unknownTemplateSection(options);
  if (!unknown.empty()) {
    return fail("no section is named " + unknown + didYouMean(unknown, zeb::templateSections(options.cmx)));
  }
  std::cout << zeb::templateText(options);
  return kClean;
}

}  // namespace

void addTemplate(CLI::App& app, int& exitCode) {
  const auto options = std::make_shared<zeb::TemplateOptions>();
  CLI::App* command = app.add_subcommand("template", "Write a commented file with every key at its default");
  command
      ->add_option_function<std::string>(
          "--as", [options](const std::string& name) { options->cmx = name == "cmx"; },
          "A cmp or a cmx file (default cmp)")
      ->check(CLI::IsMember({"cmp", "cmx"}))
      ->type_name("KIND");
  addMolding(
      *command, "--molding", [options](int code) { options->molding = code; },
      "Tell what this molding type changes after reading, and leave those keys to it");
  command->add_option("--sections", options->sections, "Only these sections or blocks; VER is the fixed-line head")
      ->type_name("SECTION");
  command->footer(examplesText({{"template > part.cmp", "every section"},
                                {"template --molding RTM > part.cmp", "for resin transfer molding"},
                                {"template --sections General Outlet", "two sections"},
                                {"template --as cmx > part.cmx", "the analysis settings"}}));
  runOnce(*command, exitCode, [options] { return run(*options); });
}

}  // namespace compparm
