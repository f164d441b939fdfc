#include "inspect/check/Rules.hpp"

#include <iterator>

namespace zeb {

namespace {

using enum CheckRule;

constexpr RuleInfo kRules[] = {
    {kUnknownKey, "unknown-key", "A line of a section sets no key.", "correct the key or remove the line"},
    {kInexactKey, "inexact-key", "A key is only found inside a longer name.", "write the key alone"},
    {kUnknownSection, "unknown-section", "An opening names no section; its lines are ignored.",
     "compparm list names the sections"},
    {kKeyOutsideSection, "key-outside-section", "A key stands outside of every section.",
     "move the line into its section"},
    {kUnclosedSection, "unclosed-section", "A section runs to the end of the file.", "add the closing line"},
    {kWrongClosingTag, "wrong-closing-tag", "A closing line does not close the section it stands in.",
     "write the closing line that the reader looks for"},
    {kCloseWithoutOpen, "close-without-open", "A closing line closes nothing.", "remove it or add the opening"},
    {kSectionInsideSection, "section-inside-section", "A section opens inside another one and is not read.",
     "close the outer section first"},
    {kCommentOpensSection, "comment-opens-section", "A comment holds an opening and so opens the section.",
     "write the section's name without brackets"},
    {kCommentClosesSection, "comment-closes-section", "A comment holds a closing and so closes the section.",
     "write the section's name without brackets"},
    {kSectionRepeated, "section-repeated", "A section stands in the file more than once.",
     "merge the two; later values win"},
    {kSeveralKeys, "several-keys", "One line sets further keys, because their names stand in it.",
     "set the other key on a later line"},
    {kCommentSetsKey, "comment-sets-key", "A comment holds a key of its section and sets it.",
     "comments do not hide keys: move it out of the section or change the key's name in it"},
    {kMissingEquals, "missing-equals", "A key stands in a line without '='.", "write Key = value"},
    {kPresenceValue, "presence-value", "A key whose presence alone counts has a value, which is not read.",
     "without the line the switch stays off"},
    {kSeveralEquals, "several-equals", "A line holds several '='; the value starts behind the first.",
     "one key and one '=' per line"},
    {kUnparsedValue, "unparsed-value", "The value is no value of the key's type and is not stored.",
     "write a number in plain decimal form"},
    {kTextAfterValue, "text-after-value", "Text behind the value is ignored.", "leave nothing behind the value"},
    {kIntFraction, "int-fraction", "A whole number is written with a fraction, which is cut.", "write a whole number"},
    {kOutOfRange, "value-out-of-range", "The number does not fit its type and is not stored.",
     "write a number that fits"},
    {kNotFinite, "not-finite", "A field or entry is read as infinite or as not a number.",
     "write a number in plain decimal form"},
    {kValueReplaced, "value-replaced", "A value outside of its range gives way to another one.",
     "write a value within the range"},
    {kCountRefused, "count-refused", "A list's count is outside of its range; 0 is used.", "0 to 1000000 are valid"},
    {kPointBeyondCount, "point-beyond-count", "A list has no such element.", "raise the count, above this line"},
    {kKeyRepeated, "key-repeated", "A key is set more than once in a section; the last line wins.",
     "keep one of the lines"},
    {kKeyGated, "key-gated", "A key is ignored because another key keeps it shut.",
     "open the gate above it or remove the line"},
    {kKeyAboveGate, "key-above-gate", "A key is ignored because it stands above the line that opens its gate.",
     "move the line below the gate"},
    {kListTooShort, "list-too-short", "A list has fewer usable entries than its count says.",
     "make count and entries agree"},
    {kListTooLong, "list-too-long", "An entry stands behind the end of its list, or without a list.",
     "make count and entries agree"},
    {kListConsumedClose, "list-consumed-close", "A list takes the section's closing line as an entry.",
     "make count and entries agree"},
    {kWeightsSum, "weights-sum", "The weights of a list do not sum to one.",
     "the last weight is always one minus the others"},
    {kPositionalFields, "positional-fields", "A positional line has too few or unreadable fields.",
     "give every field of the line as a number of its type"},
    {kPositionalExtra, "positional-extra", "Text behind the fields of a positional line is ignored.",
     "leave nothing behind the fields"},
    {kPositionalVersion, "positional-version", "A positional section is not read: its version line does not match.",
     "write the version that the reader knows"},
    {kPositionalTooShort, "positional-too-short", "A head or positional section has too few lines and takes others.",
     "add the missing lines"},
    {kLineTooLong, "line-too-long", "A line is longer than 254 characters and is cut in parallel runs.",
     "shorten the line"},
    {kCarriageReturn, "carriage-return", "The file holds carriage returns.", "save with LF line ends"},
    {kNulByte, "nul-byte", "A NUL ends its line for the reader.", "remove the NUL"},
    {kTabBeforeText, "tab-before-text", "A text value begins with a tab, which becomes part of it.",
     "put spaces behind '='"},
    {kTrailingBlanks, "trailing-blanks", "A text value ends with blanks, which become part of it.",
     "remove the blanks"},
    {kExtrasInText, "extras-in-text", "A text value holds a comment or quotation marks, which become part of it.",
     "leave nothing but the text behind '='"},
    {kNoFinalNewline, "no-final-newline", "The last line has no line end.", "end the file with a line end"},
    {kByteOrderMark, "byte-order-mark", "The file begins with a byte-order mark.", "save without one"},
    {kNotUtf8, "not-utf8", "Bytes are not UTF-8.", "save as UTF-8"},
    {kRepairedValue, "repaired-value", "The repairs of this molding and material type change the value.",
     "the solver uses the repaired value; compparm explain tells how it comes about"},
    {kEqualsDefault, "equals-default", "The value is the default.", "the line can go", false},
    {kViscoelasticRefused, "viscoelastic-refused", "The viscoelastic file is rejected; a solver overwrites it.",
     "correct the file before the solver sees it"},
    {kNoExtension, "no-extension", "The file's name has no extension, so none can be derived for its companion.",
     "rename the file to NAME.cmp"},
    {kVersionUnknown, "version-unknown", "The version line is neither 1023 nor 1013.", "write [VER] 1023"},
    {kNothingRead, "nothing-read", "The file opens no section and announces no head, so nothing of it is used.",
     "is it the right file, and of the kind that it is read as (--as)?"},
};

constexpr bool isInOrder() {
  for (std::size_t i = 0; i < std::size(kRules); ++i) {
    if (kRules[i].rule != static_cast<CheckRule>(i)) return false;
  }
  return true;
}
static_assert(isInOrder());

}  // namespace

std::span<const RuleInfo> checkRules() { return kRules; }

const RuleInfo& info(CheckRule rule) { return kRules[static_cast<std::size_t>(rule)]; }

std::optional<CheckRule> ruleNamed(std::string_view id) {
  for (const RuleInfo& rule : kRules) {
    if (rule.id == id) return rule.rule;
  }
  return {};
}

}  // namespace zeb
