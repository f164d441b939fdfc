#include "tools/compparm/AnalysisArguments.hpp"

#include "frame/MoldingTypes.hpp"

namespace compparm {

namespace {

void setMolding(zeb::AnalysisOptions& options, const std::string& nameOrCode) {
  const auto code = zeb::moldingCode(nameOrCode);
  if (!code) throw CLI::ValidationError("--molding", "expects one of " + zeb::moldingNames() + " or a code 0 to 14");
  options.molding = *code;
}

}  // namespace

void AnalysisArguments::addTo(CLI::App& command) {
  command.add_option("FILE", file, "The parameter file")->required();
  command
      .add_option_function<std::string>(
          "--molding", [this](const std::string& text) { setMolding(options, text); },
          "Molding type: " + zeb::moldingNames() + ", or its code 0 to 14 (default IM)")
      ->type_name("NAME|CODE");
  command.add_option("--material", options.material, "Material type: 0, or 1 for a thermoset (default 0)")
      ->check(CLI::Range(0, 1))
      ->type_name("0|1");
  command.add_flag("--wax", options.wax, "Wax material");
  command.add_flag(
      "--viscoelastic", options.viscoelastic,
      "Read the companion file, FILE with the extension .vecmp, too. A solver writes it with defaults where it "
      "is missing or invalid; compparm leaves it alone");
  command.add_flag("!--no-repair", options.repair,
                   "Show the values as read, before the repairs of molding and material type");
}

std::string AnalysisArguments::problem() const {
  const std::string reason = zeb::whyUnreadable(file);
  if (!reason.empty()) return file + ": " + reason;
  if (options.viscoelastic && file.rfind('.') == file.npos) {
    return file + ": has no extension, so there is no name for a viscoelastic file";
  }
  return {};
}

bool AnalysisArguments::isForCmpOnly() const { return options != zeb::AnalysisOptions(); }

std::string AnalysisArguments::moldingName() const {
  return std::string(zeb::moldingTypes()[static_cast<std::size_t>(options.molding)].name);
}

}  // namespace compparm
