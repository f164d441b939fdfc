#include "tools/compparm/AnalysisArguments.hpp"

#include <cstring>
#include <fstream>

#include "frame/MoldingTypes.hpp"
#include "tools/compparm/HelpText.hpp"

namespace compparm {

namespace {

// Texts hold no NUL; what else a file without a section holds is for the reader to say.
bool isBinary(const std::string& fileName) {
  char bytes[4096];
  std::ifstream stream(fileName, std::ios::binary);
  stream.read(bytes, sizeof bytes);
  return std::memchr(bytes, 0, static_cast<std::size_t>(stream.gcount())) != nullptr;
}

std::string moldingCodes() { return "0 to " + std::to_string(zeb::moldingTypes().size() - 1); }

}  // namespace

void addMolding(CLI::App& command, const std::string& name, std::function<void(int)> store, const std::string& about) {
  command
      .add_option_function<std::string>(
          name,
          [name, store = std::move(store)](const std::string& text) {
            const auto code = zeb::moldingCode(text);
            if (!code) {
              throw CLI::ValidationError(name, "expects one of " + zeb::moldingNames() + " or a code " +
                                                   moldingCodes() + didYouMean(text, moldingTypeNames()));
            }
            store(*code);
          },
          about)
      ->type_name("NAME|CODE");
}

void addFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names) {
  format = names.front();
  command.add_option("--format", format, "Form of the output (default " + format + ")")
      ->check(CLI::IsMember(names))
      ->type_name("FORMAT");
}

void AnalysisArguments::addTo(CLI::App& command) {
  command.add_option("FILE", file, "The parameter file")->required()->type_name("");
  addMolding(
      command, "--molding", [this](int code) { options.molding = code; },
      "Molding type: " + zeb::moldingNames() + ", or its code " + moldingCodes() + " (default " +
          std::string(zeb::moldingTypes().front().name) + ")");
  command.add_option("--material", options.material, "Material type: 0, or 1 for a thermoset (default 0)")
      ->check(CLI::Range(0, 1).description(""))
      ->type_name("0|1");
  command.add_flag("--wax", options.wax, "Wax material");
  command.add_flag(
      "--viscoelastic", options.viscoelastic,
      "Read the companion file, FILE with the extension .vecmp, too. A solver writes it with defaults where it "
      "is missing or invalid; compparm leaves it alone");
  command.add_flag("!--no-repair", options.repair,
                   "Show the values as read, before the repairs of molding and material type");
}

void AnalysisArguments::addKindTo(CLI::App& command) {
  command
      .add_option_function<std::string>(
          "--as", [this](const std::string& name) { as = zeb::kindNamed(name); },
          "Read it as cmp, cmx or std (what the standard solver sees of a CMP file); default: what the file's first "
          "block tag or section says")
      ->check(CLI::IsMember(zeb::kindNames()))
      ->type_name("KIND");
}

std::string AnalysisArguments::problem() const {
  const std::string reason = zeb::whyUnreadable(file);
  if (!reason.empty()) return file + ": " + reason;
  const auto recognised = zeb::recogniseKind(file);
  if (!as && !recognised && isBinary(file)) {
    return file + ": holds NUL bytes and no section: a binary file or UTF-16, no parameter file (--as reads it anyway)";
  }
  if (options.viscoelastic && file.rfind('.') == file.npos) {
    return file + ": has no extension, so there is no name for a viscoelastic file";
  }
  const zeb::FileKind asked = as.value_or(recognised.value_or(zeb::FileKind::kCmp));
  if (asked == zeb::FileKind::kCmp || options == zeb::AnalysisOptions()) return {};
  return file + ": --molding, --material, --wax, --viscoelastic and --no-repair have no meaning for " +
         (asked == zeb::FileKind::kCmx ? "a CMX file" : "the standard solver");
}

zeb::FileKind AnalysisArguments::kind() const {
  return as.value_or(zeb::recogniseKind(file).value_or(zeb::FileKind::kCmp));
}

std::string AnalysisArguments::moldingName() const {
  return std::string(zeb::moldingTypes()[static_cast<std::size_t>(options.molding)].name);
}

std::string AnalysisArguments::readAs(zeb::FileKind kind) const {
  if (kind == zeb::FileKind::kCmx) return "analysis settings (CMX)";
  if (kind == zeb::FileKind::kStd) return "as the standard solver reads it";
  return "molding type " + moldingName() + ", material type " + std::to_string(options.material) +
         (options.wax ? ", wax" : "") + (options.viscoelastic ? ", viscoelastic" : "") +
         (options.repair ? "" : ", not repaired");
}

Json AnalysisArguments::asJson(zeb::FileKind kind) const {
  Json json = {{"file", file}, {"kind", zeb::kindName(kind)}};
  if (kind != zeb::FileKind::kCmp) return json;
  json["molding"] = moldingName();
  json["material"] = options.material;
  return json;
}

}  // namespace compparm
