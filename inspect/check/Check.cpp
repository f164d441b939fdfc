#include "inspect/check/Check.hpp"

#include <filesystem>

#include "inspect/check/CheckObserver.hpp"
#include "inspect/check/CheckRawFile.hpp"
#include "inspect/set/Silence.hpp"

namespace zeb {

void checkFile(const std::string& fileName, FileKind kind, const AnalysisOptions& options, DiagnosticList& found) {
  found.startFile(fileName);
  AnalysisOptions asked = options;
  if (kind == FileKind::kCmp && asked.viscoelastic && !std::filesystem::path(fileName).has_extension()) {
    found.add(CheckRule::kNoExtension, Place(),
              "the name has no extension: a solver finds no name for the viscoelastic file");
    asked.viscoelastic = false;
  }
  checkRawFile(fileName, found);
  const Silence silence;
  CheckObserver observer(found, kind);
  const ParameterFile read = readParameterFile(fileName, kind, asked, nullptr, &observer);
  observer.finish();
}

}  // namespace zeb
