// One look at a file's bytes, for what the reader no longer sees: line ends, byte-order mark, NUL, encoding, length.
#pragma once

#include <string>

#include "inspect/Diagnostic.hpp"

namespace zeb {

/// Reads the file once, whatever the length of its lines in bounded memory.
void checkRawFile(const std::string& fileName, DiagnosticList& found);

}  // namespace zeb
