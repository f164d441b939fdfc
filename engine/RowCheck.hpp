// Rows that make no sense do not compile: the compiler shows what is wrong, how to mend it and which member it is
// about.
#pragma once

#include <algorithm>
#include <iterator>

#include "engine/FixedText.hpp"
#include "engine/ParameterTable.hpp"

namespace zeb::detail {

enum class RowProblem {
  kNone,
  kGateIsNoInt,
  kCountIsNoInt,
  kCountWithoutList,
  kListWithoutCount,
  kListArrayIsNoDoubles,
  kElementOfNoDoubles,
  kWordIsNoText,
  kPresenceIsNoSwitch,
  kIntIsNoDouble,
  kKeyOfNoValue,
  kRuleOnNoNumber,
  kLimitOutsideOfAHead,
  kBufferOfNoText,
  kEchoOfNoNumber,
  kLowBitsOfNoDouble,
  kTwoLabels,
  kNoMeaning,
  kKeyAndPlace,
  kKeyHoldsEquals,
};

constexpr RowProblem problemOfType(const Row& row) {
  const FieldType type = row.field.type;
  if (row.gateBelow != kNoGate && type != FieldType::kInt) return RowProblem::kGateIsNoInt;
  if (row.isElement() && type != FieldType::kDoubles) return RowProblem::kElementOfNoDoubles;
  if (row.lookup == Lookup::kWord && type != FieldType::kText) return RowProblem::kWordIsNoText;
  if (row.lookup == Lookup::kPresence && type != FieldType::kInt && type != FieldType::kBool) {
    return RowProblem::kPresenceIsNoSwitch;
  }
  if (row.lookup == Lookup::kInt && type != FieldType::kDouble) return RowProblem::kIntIsNoDouble;
  const bool isKeyed = !row.key.empty() && row.lookup == Lookup::kByType && !row.isElement();
  if (isKeyed && (type == FieldType::kBool || row.field.isArray())) return RowProblem::kKeyOfNoValue;
  if (!row.rule.none() && !row.field.isNumber() && !row.isElement()) return RowProblem::kRuleOnNoNumber;
  if (row.textBuffer > 0 && type != FieldType::kText) return RowProblem::kBufferOfNoText;
  if (!row.echo.label.empty() && !row.field.isNumber()) return RowProblem::kEchoOfNoNumber;
  if (row.dump == DumpFormat::kLowBits && type != FieldType::kDouble) return RowProblem::kLowBitsOfNoDouble;
  return RowProblem::kNone;
}

constexpr RowProblem problemOfList(const Row& row) {
  const bool isData = !row.list.isNone() && row.list.read == nullptr;
  if (row.count != Count::kNo && row.field.type != FieldType::kInt) return RowProblem::kCountIsNoInt;
  if (row.count != Count::kNo && row.list.isNone()) return RowProblem::kCountWithoutList;
  if (isData && row.count == Count::kNo && row.list.count.type != FieldType::kInt) return RowProblem::kListWithoutCount;
  if (isData && row.list.array.type != FieldType::kDoubles) return RowProblem::kListArrayIsNoDoubles;
  return RowProblem::kNone;
}

constexpr RowProblem problemOf(const Row& row) {
  if (const RowProblem problem = problemOfType(row); problem != RowProblem::kNone) return problem;
  if (const RowProblem problem = problemOfList(row); problem != RowProblem::kNone) return problem;
  if (row.rule.isBounded() && row.at[0].line == 0) return RowProblem::kLimitOutsideOfAHead;
  if (row.tabs != kNoLabel && !row.label.empty()) return RowProblem::kTwoLabels;
  if (row.doc.empty() && row.known.empty() && !row.opaque) return RowProblem::kNoMeaning;
  if (!row.key.empty() && row.at[0].line > 0) return RowProblem::kKeyAndPlace;
  if (row.key.find('=') != row.key.npos || row.otherKey.find('=') != row.otherKey.npos) {
    return RowProblem::kKeyHoldsEquals;
  }
  return RowProblem::kNone;
}

/// Stands for a row that is wrong; its name in the compiler's message tells the member.
template <RowProblem Problem, char... Member>
struct RowOf {
  static constexpr bool is(RowProblem problem) { return Problem == problem; }
  static_assert(!is(RowProblem::kGateIsNoInt),
                "a gate compares an int: take .gateBelow away, or make the member an int");
  static_assert(!is(RowProblem::kCountIsNoInt), "a count is an int: take .count away, or make the member an int");
  static_assert(!is(RowProblem::kCountWithoutList), "a count sizes a list: say which in .list, or take .count away");
  static_assert(!is(RowProblem::kListWithoutCount),
                "nothing says how many entries the list has: make the row a .count, or name the member in .list.count");
  static_assert(
      !is(RowProblem::kListArrayIsNoDoubles),
      "the list engine fills arrays of doubles: name one in .list.array, or give the list a reader (.list.read)");
  static_assert(!is(RowProblem::kElementOfNoDoubles), ".element is a place in an array of doubles");
  static_assert(!is(RowProblem::kWordIsNoText),
                "Lookup::kWord is for texts: take .lookup away, or make it an OwnedText");
  static_assert(!is(RowProblem::kPresenceIsNoSwitch),
                "Lookup::kPresence stores 1 or true: the member must be int or bool");
  static_assert(!is(RowProblem::kIntIsNoDouble),
                "Lookup::kInt is for doubles that are read as int; an int needs no .lookup");
  static_assert(!is(RowProblem::kKeyOfNoValue),
                "no value of a line becomes a bool or an array: use Lookup::kPresence, .element, or a list");
  static_assert(!is(RowProblem::kRuleOnNoNumber), "scale and replacements are for numbers: take .rule away");
  static_assert(!is(RowProblem::kLimitOutsideOfAHead),
                ".rule.takenAbove is for fields of a head: give the row a place (.at)");
  static_assert(!is(RowProblem::kBufferOfNoText), ".textBuffer is for texts");
  static_assert(!is(RowProblem::kEchoOfNoNumber), ".echo prints numbers");
  static_assert(!is(RowProblem::kLowBitsOfNoDouble), "DumpFormat::kLowBits is for doubles");
  static_assert(!is(RowProblem::kTwoLabels), ".tabs and .label exclude each other");
  static_assert(!is(RowProblem::kNoMeaning),
                "say in .doc what the member means; .known what is known where only the solver knows");
  static_assert(!is(RowProblem::kKeyAndPlace), "a member is set by a key or by its place: take .key or .at away");
  static_assert(!is(RowProblem::kKeyHoldsEquals), "a key ends before the line's '='");
};

/// Makes the first row that is wrong, if there is one, an error.
template <const auto& Rows>
consteval bool areRowsRight() {
  constexpr std::size_t kCount = std::size(Rows);
  constexpr std::size_t kWrong = [] {
    std::size_t row = 0;
    while (row < kCount && problemOf(Rows[row]) == RowProblem::kNone) ++row;
    return row;
  }();
  if constexpr (kWrong < kCount) {
    return []<std::size_t... At>(std::index_sequence<At...>) {
      return sizeof(RowOf<problemOf(Rows[kWrong]), Rows[kWrong].field.member[At]...>) > 0;
    }
    (std::make_index_sequence<Rows[kWrong].field.member.size()>());
  }
  return true;
}

}  // namespace zeb::detail
