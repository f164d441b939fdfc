// One look at a file's bytes, for what the reader no longer sees: line ends, byte-order mark, NUL, encoding, length.
#pragma once

#include <istream>
#include <string>

#include "inspect/check/Diagnostic.hpp"

namespace zeb {

/// Reads to the stream's end, whatever the length of the lines in bounded memory.
void checkRawBytes(std::istream& stream, DiagnosticList& found);
/// The same for a file; one that cannot be opened counts as empty.
void checkRawFile(const std::string& fileName, DiagnosticList& found);

}  // namespace zeb
