// From text to value: the two number grammars of the parameter files, and where a line keeps its value.
#pragma once

#include <cstring>
#include <string_view>

#include "engine/ShortNumber.hpp"

namespace zeb {

/// The text after the line's first '=', leading spaces (not tabs) removed; empty when there is no '='.
inline std::string_view valueText(std::string_view line) {
  const void* equals = std::memchr(line.data(), '=', line.size());
  if (equals == nullptr) return {};
  const char* end = line.data() + line.size();
  const char* at = static_cast<const char*>(equals) + 1;
  while (at != end && *at == ' ') ++at;
  return {at, static_cast<std::size_t>(end - at)};
}

/// What a stream's `>>` in the classic locale takes from the text. Each returns the number of characters used, 0 when
/// the extraction fails; `value` is then untouched. Out of range and an exponent without digits ("1e") fail; nan, inf
/// and hexadecimal are no numbers here ("0x10" is 0).
std::size_t extractDouble(std::string_view text, double& value);
std::size_t extractInt(std::string_view text, int& value);
/// Of a text from which nothing is extracted: whether a number stands there that does not fit its type.
bool isDoubleOutOfRange(std::string_view text);
bool isIntOutOfRange(std::string_view text);
/// The first word delimited by white space; its end is the end of what was used.
std::size_t extractWord(std::string_view text, std::string_view& value);

/// The fields of one positional line, taken one after the other as the C library's formatted scan takes them in the "C"
/// locale: nan, inf and hexadecimal are numbers. An integer that does not fit an int does not match. After the
/// first field that does not match nothing more is converted.
class FieldScanner {
 public:
  explicit FieldScanner(std::string_view line) : m_rest(line) {}

  bool next(double& value) { return takeShort(value) || nextOfAnyForm(value); }
  bool next(int& value) { return takeShort(value) || nextOfAnyForm(value); }
  bool next(std::string_view& word);
  /// What no field has taken yet.
  std::string_view rest() const { return m_rest; }

 private:
  // Most fields are short numbers with a blank in front and behind.
  template <class Number>
  bool takeShort(Number& value) {
    const char* const end = m_rest.data() + m_rest.size();
    const char* at = m_rest.data();
    while (at != end && *at == ' ') ++at;
    Number number;
    at = readShort(at, end, number);
    if (m_failed || at == nullptr || (at != end && *at != ' ')) return false;
    value = number;
    m_rest = {at, static_cast<std::size_t>(end - at)};
    return true;
  }
  bool nextOfAnyForm(double& value);
  bool nextOfAnyForm(int& value);
  bool take(std::size_t used);

  std::string_view m_rest;
  bool m_failed = false;
};

}  // namespace zeb
