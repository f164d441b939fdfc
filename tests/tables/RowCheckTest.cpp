// What a row must not say; the tables themselves do not compile with such a row.
#include <gtest/gtest.h>

#include <string>

#include "engine/TableBuilder.hpp"

namespace {

using zeb::Row;
using zeb::detail::problemOf;
using zeb::detail::RowProblem;

struct Block {
  int number = 0;
  double real = 0.0;
  bool flag = false;
  zeb::OwnedText text;
  zeb::SharedArray<int> ints;
  zeb::SharedArray<double> doubles;
};

constexpr zeb::Field kNumber = zeb::field<&Block::number>();
constexpr zeb::Field kReal = zeb::field<&Block::real>();
constexpr zeb::Field kFlag = zeb::field<&Block::flag>();
constexpr zeb::Field kText = zeb::field<&Block::text>();
constexpr zeb::Field kInts = zeb::field<&Block::ints>();
constexpr zeb::Field kDoubles = zeb::field<&Block::doubles>();

struct BadRow {
  RowProblem problem;
  Row row;
};

const BadRow kBadRows[] = {
    {RowProblem::kGateIsNoInt, {.field = kReal, .key = "Key", .gateBelow = 1, .doc = "Text."}},
    {RowProblem::kCountIsNoInt, {.field = kReal, .key = "Key", .count = zeb::Count::kYes, .doc = "Text."}},
    {RowProblem::kCountWithoutList, {.field = kNumber, .key = "Key", .count = zeb::Count::kYes, .doc = "Text."}},
    {RowProblem::kListWithoutCount, {.field = kNumber, .key = "Key", .list = {.array = kDoubles}, .doc = "Text."}},
    {RowProblem::kListArrayIsNoDoubles,
     {.field = kNumber, .key = "Key", .count = zeb::Count::kYes, .list = {.array = kInts}, .doc = "Text."}},
    {RowProblem::kElementOfNoDoubles, {.field = kReal, .key = "Key", .element = 1, .doc = "Text."}},
    {RowProblem::kWordIsNoText, {.field = kNumber, .key = "Key", .lookup = zeb::Lookup::kWord, .doc = "Text."}},
    {RowProblem::kPresenceIsNoSwitch, {.field = kText, .key = "Key", .lookup = zeb::Lookup::kPresence, .doc = "Text."}},
    {RowProblem::kIntIsNoDouble, {.field = kNumber, .key = "Key", .lookup = zeb::Lookup::kInt, .doc = "Text."}},
    {RowProblem::kKeyOfNoValue, {.field = kFlag, .key = "Key", .doc = "Text."}},
    {RowProblem::kKeyOfNoValue, {.field = kDoubles, .key = "Key", .doc = "Text."}},
    {RowProblem::kRuleOnNoNumber, {.field = kText, .key = "Key", .rule = {.scale = 2.0}, .doc = "Text."}},
    {RowProblem::kLimitOutsideOfAHead, {.field = kReal, .key = "Key", .rule = {.takenAbove = 0.0}, .doc = "Text."}},
    {RowProblem::kBufferOfNoText, {.field = kNumber, .key = "Key", .textBuffer = 9, .doc = "Text."}},
    {RowProblem::kEchoOfNoNumber, {.field = kText, .key = "Key", .echo = {"a = "}, .doc = "Text."}},
    {RowProblem::kLowBitsOfNoDouble, {.field = kNumber, .dump = zeb::DumpFormat::kLowBits, .doc = "Text."}},
    {RowProblem::kTwoLabels, {.field = kNumber, .tabs = 1, .label = "a = ", .doc = "Text."}},
    {RowProblem::kNoMeaning, {.field = kNumber, .key = "Key"}},
    {RowProblem::kKeyAndPlace, {.field = kNumber, .key = "Key", .at = {{1, 1}}, .doc = "Text."}},
    {RowProblem::kKeyHoldsEquals, {.field = kNumber, .key = "Key =", .doc = "Text."}},
};

TEST(RowCheck, FindsWhatMakesNoSense) {
  for (const BadRow& bad : kBadRows) {
    EXPECT_EQ(problemOf(bad.row), bad.problem) << "row " << &bad - kBadRows << " of " << bad.row.field.member;
  }
}

TEST(RowCheck, LeavesSenseAlone) {
  const Row kRows[] = {
      {.field = kNumber,
       .key = "Key",
       .rule = {.scale = 2.0},
       .gateBelow = 1,
       .echo = {"a = "},
       .tabs = 2,
       .known = "Text."},
      {.field = kReal, .key = "Key", .lookup = zeb::Lookup::kInt, .opaque = true},
      {.field = kReal, .rule = {.takenAbove = 10.0}, .label = "a = ", .at = {{1, 1}}, .doc = "Text."},
      {.field = kFlag, .key = "Key", .lookup = zeb::Lookup::kPresence, .doc = "Text."},
      {.field = kText, .key = "Key", .lookup = zeb::Lookup::kWord, .textBuffer = 9, .doc = "Text."},
      {.field = kNumber, .key = "Key", .count = zeb::Count::kYes, .list = {.array = kDoubles}, .doc = "Text."},
      {.field = kNumber, .key = "Key", .list = {.array = kDoubles, .count = kNumber}, .doc = "Text."},
      {.field = kDoubles, .key = "Key", .rule = {.scale = 2.0}, .element = 3, .doc = "Text."},
      {.field = kInts, .doc = "Text."},
  };
  for (const Row& row : kRows) EXPECT_EQ(problemOf(row), RowProblem::kNone) << "row " << &row - kRows;
}

}  // namespace
