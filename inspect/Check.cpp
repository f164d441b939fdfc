#include "inspect/Check.hpp"

#include <filesystem>

#include "inspect/CheckObserver.hpp"
#include "inspect/CheckRawFile.hpp"
#include "inspect/OutputCapture.hpp"

namespace zeb {

void checkFile(const std::string& fileName, const AnalysisOptions& options, DiagnosticList& found) {
  found.startFile(fileName);
  AnalysisOptions asked = options;
  if (asked.viscoelastic && !std::filesystem::path(fileName).has_extension()) {
    found.add(CheckRule::kNoExtension, 0, {}, 0, "the name has no extension: a solver stops here");
    asked.viscoelastic = false;
  }
  checkRawFile(fileName, found);
  const OutputCapture quiet;
  CheckObserver observer(found);
  analyse(fileName, asked, nullptr, &observer);
  observer.finish();
}

}  // namespace zeb
