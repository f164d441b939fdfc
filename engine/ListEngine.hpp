// The lists that a key announces: the one loop over their lines, and what the few that are like no other are built of.
#pragma once

#include <string>
#include <string_view>

#include "engine/LineSource.hpp"
#include "engine/ParameterTable.hpp"
#include "engine/ReadObserver.hpp"

namespace zeb {

/// What a list works with.
struct ListContext {
  const Section& section;
  const Row& row;  ///< of the key that announced the list
  void* block;
  LineReader& lines;
  std::string_view& line;  ///< the current line; with ListResult::kNextLine the list leaves another one here
};

/// Makes room and reads the lines as the row's List says.
ListResult readList(ListContext& context);

/// Takes the next line of a list, an empty one when the input is exhausted (then false).
bool nextLineOfList(ListContext& context, std::string_view& line);
/// Tells the observer what became of the line that the list has just taken.
void reportLineOfList(const ListContext& context, const EntryEvent& entry);
/// The number behind the '=' of a line that holds the name; `value` stays as it is where there is none.
EntryEvent takeValue(std::string_view line, std::string_view name, int& value);
EntryEvent takeValue(std::string_view line, std::string_view name, double& value);
/// The number of "name = value", by the formatted scan.
EntryEvent scanValue(std::string_view line, Entry entry, double& value);
/// Tells the observer that the line has set one of the members that the list fills, before the line itself is reported.
void reportMemberOfList(const ListContext& context, const void* member, std::string_view line, std::string_view value);

bool isValidCount(Count kind, int count);
/// Prints, where the file is read, that the count is outside its range, and takes the arrays that the row's list fills
/// away from the block. What was handed out stays valid. The caller stores 0 and takes no line for the list.
void refuseCount(const Section& section, const Row& announcing, void* block, std::string_view key, int count,
                 const LineReader& lines);

}  // namespace zeb
