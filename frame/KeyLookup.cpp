// One key against one line. Sections with many keys find them all in one pass (KeyFilter) with the same result.
#include "frame/KeyLookup.h"

#include "engine/ValueText.hpp"

namespace {

bool holdsKey(const std::string& line, const std::string& key) { return line.find(key.c_str()) != std::string::npos; }

}  // namespace

int GetKeyValueDouble(const std::string& line, const std::string& key, double& value) {
  if (!holdsKey(line, key)) return 0;
  zeb::extractDouble(zeb::valueText(line), value);
  return 1;
}

int GetKeyValueInt(const std::string& line, const std::string& key, int& value) {
  if (!holdsKey(line, key)) return 0;
  zeb::extractInt(zeb::valueText(line), value);
  return 1;
}

int GetKeyValueString(const std::string& line, const std::string& key, std::string& value) {
  if (!holdsKey(line, key)) return 0;
  value = std::string(zeb::valueText(line));
  return 1;
}

int GetKeyValueWord(const std::string& line, const std::string& key, std::string& value) {
  if (!holdsKey(line, key)) return 0;
  std::string_view word;
  if (zeb::extractWord(zeb::valueText(line), word) > 0) value = std::string(word);
  return 1;
}
