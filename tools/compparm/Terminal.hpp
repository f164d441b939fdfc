// What the commands share in talking to people: colour where it helps, errors in one form, exit codes.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace compparm {

/// Exit codes of every command.
enum ExitCode { kClean = 0, kFindings = 1, kError = 2 };

enum class Colour { kBold, kDim, kRed, kGreen, kYellow, kCyan };

/// The text in colour when standard output is a terminal and NO_COLOR is not set; as it stands otherwise.
std::string coloured(Colour colour, std::string_view text);

/// The text with its control characters written out, so that none of a file's reaches the terminal.
std::string printable(std::string_view text);

/// "compparm: <text>" on standard error. Returns kError. Allocates nothing: memory may be what failed.
int fail(std::string_view text);
int fail(const std::exception& error);

/// The parts of a text; none is empty behind the last separator.
std::vector<std::string> split(std::string_view text, char separator);

/// The text filled up with blanks on the right. Counts characters of UTF-8 as one column each.
std::string padded(std::string_view text, std::size_t width);

}  // namespace compparm
