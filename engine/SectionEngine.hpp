// The one loop that reads keyed sections, and the one that reads positional lines, for every table.
#pragma once

#include <string>
#include <string_view>

#include "engine/LineSource.hpp"
#include "engine/ParameterTable.hpp"
#include "engine/ValueText.hpp"

namespace zeb {

/// What a list function works with.
struct ListContext {
  const Section& section;
  const Row& row;  ///< of the key that announced the list
  void* block;
  LineReader& lines;
  std::string& line;  ///< the current line; with ListResult::kNextLine the list leaves another one here
};

/// Reads the lines of a keyed section into the block, up to and including its closing line or to the end of the input.
void readSection(const Section& section, void* block, LineReader& lines);

/// Reads a positional section's lines straight into the block. False when its version line does not match: then
/// only that line has been taken.
bool readPositional(const Section& section, void* block, LineReader& lines);

bool isClosedBy(const Section& section, std::string_view line);

/// Takes the next line of a list, an empty one when the input is exhausted (then false).
bool nextLineOfList(ListContext& context, std::string& line);
/// Tells the observer what became of a line of a list.
void reportLineOfList(const ListContext& context, std::string_view line, bool used);
/// Tells the observer that one line of the list has set one of the members that the list fills, before the line itself
/// is reported.
void reportMemberOfList(const ListContext& context, const void* member, std::string_view line, std::string_view value);
/// For a count that stands in a line of a list: prints, where the file is read, that it is outside of 0 to
/// kLargestCount. The list then stores 0 and takes no line for it.
void refuseCount(const ListContext& context, std::string_view key, int count);

/// Takes the arrays that the row's list fills away from the block, as a refused count demands. What was handed out
/// stays valid.
void releaseLists(const Section& section, const Row& announcing, void* block);

}  // namespace zeb
