// What a line of a parameter file says to the person who wrote it: its name, its tag, whether it is a comment.
#pragma once

#include <string_view>

namespace zeb {

std::string_view trimmed(std::string_view text);
/// A line that engineers mean as a comment; to the reader there is no such thing.
bool isComment(std::string_view line);
/// The text before the first '=', or the first word of a line without one.
std::string_view nameOf(std::string_view line);

/// A line that consists of a tag: "[Outlet]", "[/Outlet]", also "[Outlet" without its end.
struct Tag {
  std::string_view text;  ///< as it stands in the line; empty when the line is no tag
  std::string_view name;  ///< "Outlet"
  bool closes = false;

  explicit operator bool() const { return !text.empty(); }
};
Tag tagOf(std::string_view line, char bracket);

}  // namespace zeb
