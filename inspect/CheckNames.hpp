// The names that a file may hold, and which of them somebody may have meant.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/ParameterTable.hpp"

namespace zeb {

std::string_view trimmed(std::string_view text);
/// A line that engineers mean as a comment; to the reader there is no such thing.
bool isComment(std::string_view line);
/// The text before the first '=', or the first word of a line without one.
std::string_view nameOf(std::string_view line);
/// The name in a line that consists of a tag ("/Outlet" for a closing one); empty for any other line.
std::string_view tagOf(std::string_view line, char bracket);

/// All sections of a CMP file that an opening announces.
std::span<const Section* const> namedSections();
const Section* sectionNamed(std::string_view name);

bool hasKey(const Section& section, std::string_view name);
/// Words that stand in the lines of a section's list.
bool isListWord(const Section& section, std::string_view name);

/// At most three of the section's keys that are close to the name, nearest first.
std::vector<std::string_view> nearKeys(const Section& section, std::string_view name);
/// At most two section names close to the name, nearest first.
std::vector<std::string_view> nearSections(std::string_view name);
/// Opening tags of the sections that have this very key, separated by commas.
std::string sectionsWithKey(std::string_view name);
/// Whether one may be a misspelling of the other: case apart, few letters differ.
bool isNear(std::string_view a, std::string_view b);

/// "A, B or C"
std::string joined(const std::vector<std::string_view>& names);

}  // namespace zeb
