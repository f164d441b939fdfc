#include "inspect/trace/LineText.hpp"

namespace zeb {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\v\f";
  const auto first = text.find_first_not_of(kBlank);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

bool isComment(std::string_view line) {
  line = trimmed(line);
  return line.starts_with('#') || line.starts_with(';') || line.starts_with('*') || line.starts_with("//");
}

std::string_view nameOf(std::string_view line) {
  const auto equals = line.find('=');
  const std::string_view name = trimmed(line.substr(0, equals));
  return equals != line.npos ? name : name.substr(0, name.find_first_of(" \t"));
}

Tag tagOf(std::string_view line, char bracket) {
  line = trimmed(line);
  if (!line.starts_with(bracket)) return {};
  Tag tag;
  const auto end = line.find(bracket == '<' ? '>' : ']');
  const bool whole = end != line.npos;
  // Without its end only a single word passes for a tag.
  if (!whole && line.find_first_of(" \t=") != line.npos) return {};
  tag.text = whole ? line.substr(0, end + 1) : line;
  tag.name = line.substr(1, whole ? end - 1 : line.npos);
  tag.closes = tag.name.starts_with('/');
  if (tag.closes) tag.name.remove_prefix(1);
  return tag;
}

}  // namespace zeb
