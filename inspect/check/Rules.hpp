// The catalogue of what the checker looks for. Identifiers are stable: people switch rules off by them.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace zeb {

enum class CheckRule {
  kUnknownKey,
  kInexactKey,
  kUnknownSection,
  kKeyOutsideSection,
  kUnclosedSection,
  kWrongClosingTag,
  kCloseWithoutOpen,
  kSectionInsideSection,
  kCommentOpensSection,
  kCommentClosesSection,
  kSectionRepeated,
  kSeveralKeys,
  kCommentSetsKey,
  kMissingEquals,
  kPresenceValue,
  kSeveralEquals,
  kUnparsedValue,
  kTextAfterValue,
  kIntFraction,
  kOutOfRange,
  kNotFinite,
  kValueReplaced,
  kCountRefused,
  kPointBeyondCount,
  kKeyRepeated,
  kKeyGated,
  kKeyAboveGate,
  kListTooShort,
  kListTooLong,
  kListConsumedClose,
  kWeightsSum,
  kPositionalFields,
  kPositionalExtra,
  kPositionalVersion,
  kPositionalTooShort,
  kLineTooLong,
  kCarriageReturn,
  kNulByte,
  kTabBeforeText,
  kTrailingBlanks,
  kExtrasInText,
  kNoFinalNewline,
  kByteOrderMark,
  kNotUtf8,
  kRepairedValue,
  kEqualsDefault,
  kViscoelasticRefused,
  kNoExtension,
  kVersionUnknown,
  kNothingRead,
};

struct RuleInfo {
  CheckRule rule;
  std::string_view id;
  std::string_view about;
  std::string_view hint;
  bool byDefault = true;
};

/// All rules, in the order of CheckRule.
std::span<const RuleInfo> checkRules();
const RuleInfo& info(CheckRule rule);
std::optional<CheckRule> ruleNamed(std::string_view id);

}  // namespace zeb
