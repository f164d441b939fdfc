// compparm template: a file with every key at its default.
#include <iostream>
#include <memory>

#include "inspect/Analysis.hpp"
#include "inspect/Template.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

int run(const zeb::TemplateOptions& options) {
  if (options.cmx && options.molding) return fail("a CMX file does not depend on the molding type");
  const std::string unknown = zeb::unknownTemplateSection(options);
  if (!unknown.empty()) return fail("no section is named " + unknown);
  std::cout << zeb::templateText(options);
  return kClean;
}

void setMolding(zeb::TemplateOptions& options, const std::string& nameOrCode) {
  options.molding = zeb::moldingCode(nameOrCode);
  if (!options.molding) {
    throw CLI::ValidationError("--molding", "expects one of " + zeb::moldingNames() + " or a code 0 to 14");
  }
}

}  // namespace

void addTemplate(CLI::App& app, int& exitCode) {
  const auto options = std::make_shared<zeb::TemplateOptions>();
  CLI::App* command = app.add_subcommand("template", "Write a commented file with every key at its default");
  command
      ->add_option_function<std::string>(
          "--molding", [options](const std::string& text) { setMolding(*options, text); },
          "Tell what this molding type changes after reading")
      ->type_name("NAME|CODE");
  command->add_option("--sections", options->sections, "Only these sections or blocks; VER is the fixed-line head")
      ->type_name("NAME");
  command->add_flag("--cmx", options->cmx, "A CMX file instead of a CMP file");
  command->callback([options, &exitCode] { exitCode = run(*options); });
}

}  // namespace compparm
