// The four key lookups on which every keyed section rests.
#pragma once

#include <string>

/// Looks for `key` (compared up to its first NUL) anywhere in `line`: a case-sensitive substring, no word boundaries.
/// Found or not is the result: 1 or 0. When found, the text after the line's *first* '=' (wherever the key stands),
/// without its leading spaces, is converted as a stream's `>>` in the classic locale would: the number may be followed
/// by any text. When the key is absent, or its text does not parse, `value` keeps what it held.
int GetKeyValueDouble(const std::string& line, const std::string& key, double& value);
int GetKeyValueInt(const std::string& line, const std::string& key, int& value);
/// The whole value text, inner and trailing blanks kept; the empty text when the line has no '='.
int GetKeyValueString(const std::string& line, const std::string& key, std::string& value);
/// The first word of the value text.
int GetKeyValueWord(const std::string& line, const std::string& key, std::string& value);
