// Checks one parameter file: the library reads it, an observer words what it sees.
#pragma once

#include <string>

#include "inspect/check/Diagnostic.hpp"
#include "inspect/set/ParameterFile.hpp"

namespace zeb {

/// Adds the findings of the file; it must be readable (see whyUnreadable). Prints nothing. `options` matter to
/// FileKind::kCmp alone.
void checkFile(const std::string& fileName, FileKind kind, const AnalysisOptions& options, DiagnosticList& found);

}  // namespace zeb
