#include "inspect/Check.hpp"

#include <filesystem>

#include "inspect/CheckObserver.hpp"
#include "inspect/CheckRawFile.hpp"
#include "inspect/Silence.hpp"

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
