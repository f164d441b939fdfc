// Checks one parameter file: the library reads it, an observer words what it sees.
#pragma once

#include <string>
#include <vector>

#include "inspect/Analysis.hpp"
#include "inspect/Diagnostic.hpp"

namespace zeb {

/// Adds the findings of the file; it must be readable (see whyUnreadable). Prints nothing.
void checkFile(const std::string& fileName, const AnalysisOptions& options, DiagnosticList& found);

}  // namespace zeb
