// The catalogue of what the checker looks for. Each rule is defined beside the code that judges by it, in the file of
// its subject; identifiers are stable: people switch rules off by them.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "inspect/set/ParameterFile.hpp"

namespace zeb {

/// A file in which a rule finds something, and one in which nothing is found; proven by the tests.
struct RuleExample {
  std::string_view bad;
  int line;  ///< of the finding; 0: it belongs to the whole file
  int column;
  std::string_view message;
  std::string_view good;

  FileKind kind = FileKind::kCmp;
  std::string_view molding = "IM";
  std::string_view badCompanion = {};  ///< viscoelastic file; both files are then read with it
  std::string_view goodCompanion = {};
  std::string_view badName = "part.cmp";

  bool isViscoelastic() const { return !badCompanion.empty() || badName.find('.') == badName.npos; }
};

struct CheckRule {
  std::string_view id;
  std::string_view about;
  std::string_view hint;  ///< where a finding has none of its own
  std::string_view why;   ///< what the reader does with such a line
  RuleExample example;
  bool byDefault = true;

  bool operator==(const CheckRule& other) const { return this == &other; }
};

// Names.cpp
extern const CheckRule kUnknownKey, kInexactKey, kSeveralKeys, kCommentSetsKey;
// Sections.cpp
extern const CheckRule kUnknownSection, kKeyOutsideSection, kUnclosedSection, kWrongClosingTag, kCloseWithoutOpen,
    kSectionInsideSection, kCommentOpensSection, kCommentClosesSection, kSectionRepeated, kVersionUnknown, kNothingRead;
// Values.cpp
extern const CheckRule kMissingEquals, kPresenceValue, kSeveralEquals, kUnparsedValue, kTextAfterValue, kIntFraction,
    kOutOfRange, kValueReplaced, kKeyRepeated, kTabBeforeText, kTrailingBlanks, kExtrasInText, kRepairedValue,
    kEqualsDefault;
// Gates.cpp
extern const CheckRule kKeyGated, kKeyAboveGate;
// Lists.cpp
extern const CheckRule kNotFinite, kCountRefused, kPointBeyondCount, kListTooShort, kListTooLong, kListConsumedClose,
    kWeightsSum;
// Positional.cpp
extern const CheckRule kPositionalFields, kPositionalExtra, kPositionalVersion, kPositionalTooShort;
// Bytes.cpp
extern const CheckRule kLineTooLong, kCarriageReturn, kNulByte, kNoFinalNewline, kByteOrderMark, kNotUtf8;
// Companion.cpp
extern const CheckRule kViscoelasticRefused, kNoExtension;

/// All rules, in the order of the manual.
std::span<const CheckRule* const> checkRules();
/// Null when there is none of this identifier.
const CheckRule* ruleNamed(std::string_view id);
/// The rule's place in checkRules().
std::size_t indexOf(const CheckRule& rule);

/// The options of `compparm check` that the rule's example needs: "--molding GAIM ".
std::string exampleOptions(const CheckRule& rule);

}  // namespace zeb
