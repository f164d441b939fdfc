// A CMP file's companion, and the one check of a file as a whole.
#include <algorithm>
#include <filesystem>

#include "inspect/check/Bytes.hpp"
#include "inspect/check/Check.hpp"
#include "inspect/check/Checker.hpp"
#include "inspect/set/Silence.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

namespace zeb {

namespace {

constexpr std::string_view kGoodCompanion =
    "1006\n100 200 0\n11 0.1 12\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n1 0.5 0\n-1\n";

}  // namespace

const CheckRule kViscoelasticRefused{
    "viscoelastic-refused",
    "The viscoelastic file is rejected; a solver overwrites it.",
    "correct the file before the solver sees it",
    "Only with --viscoelastic. A viscoelastic file is refused as a whole when its version, model or confirmation "
    "is wrong. A solver keeps it as NAME.vecmp.bak (or NAME.vecmp.bak.1 and so on, as no backup is overwritten), "
    "writes a default file in its place and reckons with the defaults. A file that cannot be read stays as it is.",
    {"[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n", 1, 1,
     "line 1 does not hold the version of this file format; nothing of it is used, and a solver writes "
     "a default file in its place",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n", FileKind::kCmp, "IM",
     "1005\n100 200 0\n11 0.1 12\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n"
     "1 0.5 0\n-1\n",
     kGoodCompanion}};

const CheckRule kNoExtension{
    "no-extension",
    "The file's name has no extension, so none can be derived for its companion.",
    "rename the file to NAME.cmp",
    "Only with --viscoelastic. The viscoelastic file bears the name of the CMP file with the extension "
    ".vecmp. Where there is no extension to replace, a solver stops.",
    {"[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n",
     0,
     1,
     "the name has no extension: a solver finds no name for the viscoelastic file",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n",
     FileKind::kCmp,
     "IM",
     {},
     kGoodCompanion,
     "part"}};

void checkFile(const std::string& fileName, FileKind kind, const AnalysisOptions& options, DiagnosticList& found) {
  found.startFile(fileName);
  AnalysisOptions asked = options;
  if (kind == FileKind::kCmp && asked.viscoelastic && !std::filesystem::path(fileName).has_extension()) {
    found.add(kNoExtension, Place(), "the name has no extension: a solver finds no name for the viscoelastic file");
    asked.viscoelastic = false;
  }
  checkRawFile(fileName, found);
  const Silence silence;
  Checker checker(found, kind);
  const ParameterFile read = readTraced(fileName, kind, asked, nullptr, checker);
  checker.finish();
}

void Checker::fileRefused(int lineNumber, std::string_view text, std::string_view reason) {
  m_found.add(kViscoelasticRefused, lineNumber, text, 0,
              std::string(reason) + "; nothing of it is used, and a solver " +
                  (reason == kUnreadable ? "leaves it as it is" : "writes a default file in its place"));
}

}  // namespace zeb
