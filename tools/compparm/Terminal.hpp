// What the commands share in talking to people: colour where it helps, errors in one form, exit codes.
#pragma once

#include <string>
#include <string_view>

namespace compparm {

/// Exit codes of every command.
enum ExitCode { kClean = 0, kFindings = 1, kError = 2 };

enum class Colour { kBold, kDim, kRed, kGreen, kYellow, kCyan };

/// The text in colour when standard output is a terminal and NO_COLOR is not set; as it stands otherwise.
std::string coloured(Colour colour, std::string_view text);

/// The text with its control characters written out, so that none of a file's reaches the terminal.
std::string printable(std::string_view text);

/// "compparm: <text>" on standard error. Returns kError.
int fail(const std::string& text);

/// The text filled up with blanks on the right. Counts characters of UTF-8 as one column each.
std::string padded(std::string_view text, std::size_t width);

}  // namespace compparm
