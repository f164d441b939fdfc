#include "inspect/check/Rules.hpp"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace zeb {

namespace {

// clang-format off
constexpr const CheckRule* kRules[] = {
    &kUnknownKey, &kInexactKey, &kUnknownSection, &kKeyOutsideSection, &kUnclosedSection, &kWrongClosingTag,
    &kCloseWithoutOpen, &kSectionInsideSection, &kCommentOpensSection, &kCommentClosesSection, &kSectionRepeated,
    &kSeveralKeys, &kCommentSetsKey, &kMissingEquals, &kPresenceValue, &kSeveralEquals, &kUnparsedValue,
    &kTextAfterValue, &kIntFraction, &kOutOfRange, &kNotFinite, &kValueReplaced, &kCountRefused, &kPointBeyondCount,
    &kKeyRepeated, &kKeyGated, &kKeyAboveGate, &kListTooShort, &kListTooLong, &kListConsumedClose, &kWeightsSum,
    &kPositionalFields, &kPositionalExtra, &kPositionalVersion, &kPositionalTooShort, &kLineTooLong, &kCarriageReturn,
    &kNulByte, &kTabBeforeText, &kTrailingBlanks, &kExtrasInText, &kNoFinalNewline, &kByteOrderMark, &kNotUtf8,
    &kRepairedValue, &kEqualsDefault, &kViscoelasticRefused, &kNoExtension, &kVersionUnknown, &kNothingRead,
};
// clang-format on

}  // namespace

std::span<const CheckRule* const> checkRules() { return kRules; }

const CheckRule* ruleNamed(std::string_view id) {
  const auto found =
      std::find_if(std::begin(kRules), std::end(kRules), [&](const CheckRule* rule) { return rule->id == id; });
  return found == std::end(kRules) ? nullptr : *found;
}

std::size_t indexOf(const CheckRule& rule) {
  const auto found = std::find(std::begin(kRules), std::end(kRules), &rule);
  if (found == std::end(kRules)) throw std::logic_error("no place in kRules: the rule " + std::string(rule.id));
  return static_cast<std::size_t>(found - std::begin(kRules));
}

std::string exampleOptions(const CheckRule& rule) {
  std::string all;
  if (rule.example.molding != "IM") all += "--molding " + std::string(rule.example.molding) + " ";
  if (rule.example.isViscoelastic()) all += "--viscoelastic ";
  if (!rule.byDefault) all += "-W " + std::string(rule.id) + " ";
  return all;
}

}  // namespace zeb
