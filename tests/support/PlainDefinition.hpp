// The key lookups as they are defined, word for word: find, first '=', leading spaces, a stream. Slow, and the oracle
// for the library's own.
#pragma once

#include <locale>
#include <sstream>
#include <string>

namespace zebtest {

inline bool plainValueText(const std::string& line, const std::string& key, std::string& text) {
  if (line.find(key.c_str()) == std::string::npos) return false;
  text.clear();
  const auto equals = line.find('=');
  if (equals != std::string::npos) text = line.substr(equals + 1);
  text.erase(0, text.find_first_not_of(' '));
  return true;
}

template <class Value>
int plainExtract(const std::string& line, const std::string& key, Value& value) {
  std::string text;
  if (!plainValueText(line, key, text)) return 0;
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  Value read{};
  if (stream >> read) value = read;
  return 1;
}

inline int plainString(const std::string& line, const std::string& key, std::string& value) {
  return plainValueText(line, key, value) ? 1 : 0;
}

}  // namespace zebtest
