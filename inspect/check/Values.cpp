// What becomes of a value.
#include "inspect/set/Values.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "inspect/check/Checker.hpp"
#include "inspect/check/Wording.hpp"

namespace zeb {

const CheckRule kMissingEquals{
    "missing-equals",
    "A key stands in a line without '='.",
    "write Key = value",
    "The value is what stands behind the first '='. Without one there is no value to store.",
    {"[ShortShot]\nTimeLimit 2\n[/ShortShot]\n", 2, 10, "no '=' behind TimeLimit; TimeLimit keeps 1.1",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"}};

const CheckRule kPresenceValue{
    "presence-value",
    "A key whose presence alone counts has a value, which is not read.",
    "without the line the switch stays off",
    "Some switches have no value: the word alone sets them, and nothing sets them back. Such a line says "
    "off and switches on.",
    {"[Whiteboard]\nSensorHeatFlux = 0\n[/Whiteboard]\n", 2, 16,
     "SensorHeatFlux is switched on by its presence; '= 0' is not read",
     "[Whiteboard]\nSensorHeatFlux\n[/Whiteboard]\n"}};

const CheckRule kSeveralEquals{"several-equals",
                               "A line holds several '='; the value starts behind the first.",
                               "one key and one '=' per line",
                               "The value begins behind the first '=' of the line, wherever the key stands.",
                               {"[ShortShot]\nTimeLimit = 2 = 3\n[/ShortShot]\n", 2, 15,
                                "a second '='; TimeLimit becomes 2", "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"}};

const CheckRule kUnparsedValue{
    "unparsed-value",
    "The value is no value of the key's type and is not stored.",
    "write a number in plain decimal form",
    "A value that does not begin with a number is not stored, and the parameter keeps what it had. \"nan\", "
    "\"inf\" and a bare exponent (\"1e\") are no numbers.",
    {"[ShortShot]\nTimeLimit = two\n[/ShortShot]\n", 2, 13, "'two' is no number; TimeLimit keeps 1.1",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"}};

const CheckRule kTextAfterValue{
    "text-after-value",
    "Text behind the value is ignored.",
    "leave nothing behind the value",
    "A number ends where its type allows no further character. So a whole number ends before an exponent, "
    "a number before a decimal comma, and a unit is never read.",
    {"[General]\nnParticleSubDt = 1e5\n[/General]\n", 2, 19, "reading stops here: 1 is used, 'e5' is ignored",
     "[General]\nnParticleSubDt = 100000\n[/General]\n"}};

const CheckRule kIntFraction{
    "int-fraction",
    "A whole number is written with a fraction, which is cut.",
    "write a whole number",
    "A whole number ends at the decimal point. (\".0\" loses nothing and is not reported.)",
    {"[General]\nTempSubdt = 2.5\n[/General]\n", 2, 14, "reading stops here: 2 is used, '.5' is ignored",
     "[General]\nTempSubdt = 3\n[/General]\n"}};

const CheckRule kOutOfRange{
    "value-out-of-range",
    "The number does not fit its type and is not stored.",
    "write a number that fits",
    "A number that does not fit its type is not stored: whole numbers end at 2147483647.",
    {"[General]\nTempSubdt = 2147483648\n[/General]\n", 2, 13, "'2147483648' is no int in range; TempSubdt keeps 1",
     "[General]\nTempSubdt = 2147483647\n[/General]\n"}};

const CheckRule kValueReplaced{
    "value-replaced",
    "A value outside of its range gives way to another one.",
    "write a value within the range",
    "Some values are bounded by the reader, and a few stand for others. Where the value that is used "
    "is the default, nothing is reported: many a file says 0 for it.",
    {"[ProcessModify]\nFlowRateChangeUpperBound = 0.5\n[/ProcessModify]\n", 2, 28,
     "0.5 is out of range for FlowRateChangeUpperBound: 1 is used",
     "[ProcessModify]\nFlowRateChangeUpperBound = 1.5\n[/ProcessModify]\n"}};

const CheckRule kKeyRepeated{"key-repeated",
                             "A key is set more than once in a section; the last line wins.",
                             "keep one of the lines",
                             "Each line is stored as it comes, so the last one of a key wins.",
                             {"[ShortShot]\nTimeLimit = 2\nTimeLimit = 3\n[/ShortShot]\n", 3, 1,
                              "TimeLimit was set in line 2 already; this line wins with 3",
                              "[ShortShot]\nTimeLimit = 2\nFRLimit = 3\n[/ShortShot]\n"}};

const CheckRule kTabBeforeText{
    "tab-before-text",
    "A text value begins with a tab, which becomes part of it.",
    "put spaces behind '='",
    "Only spaces behind the '=' are skipped. A tab becomes the first character of a text.",
    {"[Compression]\nFilePathOfLocation = \tpart.loc\n[/Compression]\n", 2, 22,
     "the tab becomes part of FilePathOfLocation", "[Compression]\nFilePathOfLocation = part.loc\n[/Compression]\n"}};

const CheckRule kTrailingBlanks{
    "trailing-blanks",
    "A text value ends with blanks, which become part of it.",
    "remove the blanks",
    "A text runs to the end of its line, blanks included: no file of that name will be found.",
    {"[Compression]\nFilePathOfLocation = part.loc  \n[/Compression]\n", 2, 30,
     "the blanks become part of FilePathOfLocation", "[Compression]\nFilePathOfLocation = part.loc\n[/Compression]\n"}};

const CheckRule kExtrasInText{
    "extras-in-text",
    "A text value holds a comment or quotation marks, which become part of it.",
    "leave nothing but the text behind '='",
    "A text runs to the end of its line. What is meant as a comment, and quotation marks around a name, "
    "are part of the name: no file of that name will be found.",
    {"[Compression]\nFilePathOfLocation = part.loc # the part\n[/Compression]\n", 2, 31,
     "the comment becomes part of FilePathOfLocation",
     "[Compression]\nFilePathOfLocation = part.loc\n[/Compression]\n"}};

const CheckRule kRepairedValue{
    "repaired-value",
    "The repairs of this molding and material type change the value.",
    "the solver uses the repaired value; compparm explain tells how it comes about",
    "After reading, the library repairs the parameters for the molding and material type. The solver "
    "uses what the repair leaves, not what the file says.",
    {"[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n", 2, 1, "the repairs change the value from 2 to 8 (molding type GAIM)",
     "[ShortShot]\nFRLimit = 0.003\n[/ShortShot]\n", FileKind::kCmp, "GAIM"}};

const CheckRule kEqualsDefault{
    "equals-default",
    "The value is the default.",
    "the line can go",
    "The line says what is in force without it. Off by default; -W equals-default switches it on.",
    {"[ShortShot]\nTimeLimit = 1.1\n[/ShortShot]\n", 2, 13, "TimeLimit is 1.1 by default",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"},
    false};

namespace {

bool isText(const Row& row) { return row.field.type == FieldType::kText; }

// ".0" behind a whole number takes nothing away from it.
bool isZeroFraction(std::string_view tail) {
  return tail.starts_with('.') && tail.find_first_not_of('0', 1) == tail.npos;
}

}  // namespace

// What a member holds, short enough for a message. A list may be long: of its elements only the text is shown.
std::string Checker::shown(const Hit& hit) const {
  if (hit.row->isElement()) return std::string(trimmed(m_line->convertedText(hit)).substr(0, kLongestShown));
  const std::string value = valueOf(*hit.row, hit.block);
  return value.size() > kLongestShown ? value.substr(0, kLongestShown) + "..." : value;
}

void Checker::judgeOwnKey(const Hit& hit) {
  const std::string key(hit.key);
  if (hit.sets()) judgeRepeated(hit);
  if (hit.row->lookup == Lookup::kPresence) return judgePresence(hit);
  const auto equals = text().find('=');
  if (equals == text().npos) {
    return add(kMissingEquals, hit.keyAt + key.size(),
               "no '=' behind " + key +
                   (isText(*hit.row) ? "; an empty text is stored" : "; " + key + " keeps " + shown(hit)));
  }
  const auto second = text().find('=', equals + 1);
  if (second == text().npos || isText(*hit.row)) return judgeValue(hit);
  add(kSeveralEquals, second, "a second '='; " + key + (hit.sets() ? " becomes " : " keeps ") + shown(hit));
}

void Checker::judgePresence(const Hit& hit) {
  const std::size_t behind = hit.keyAt + hit.key.size();
  const std::string_view rest = trimmed(text().substr(behind));
  const bool hasEquals = rest.starts_with('='), takesWords = hit.row->opensList();
  if (rest.empty() || (takesWords && !hasEquals)) return;
  const std::string_view value = trimmed(rest.substr(hasEquals ? 1 : 0));
  constexpr std::string_view kOn[] = {"", "1", "true", "on", "yes"};
  if (!takesWords && std::find(std::begin(kOn), std::end(kOn), value) != std::end(kOn)) return;
  add(kPresenceValue, text().find(rest, behind),
      std::string(hit.key) + " is switched on by its presence; " + quoted(rest) + " is not read");
}

void Checker::judgeRepeated(const Hit& hit) {
  const SetBy before = std::exchange(m_setAt[hit.row], {here(hit.keyAt), hit.key, hit.block});
  m_pending.erase(hit.row);
  if (before.place.line == 0) return;
  std::string message = std::string(hit.key) + " was set in line " + std::to_string(before.place.line) + " already";
  if (before.key != hit.key) message += ", as " + std::string(before.key);
  add(kKeyRepeated, hit.keyAt, message + "; this line wins with " + shown(hit) + forgetElements(*hit.row));
}

void Checker::judgeValue(const Hit& hit) {
  const std::string key(hit.key);
  switch (hit.outcome) {
    case KeyOutcome::kUnparsed:
      return judgeUnparsed(hit);
    case KeyOutcome::kRefused:
      return add(kCountRefused, hit.valueAt, countRefused());
    case KeyOutcome::kNotStored:
      if (losesNothing(hit) || isOfSwitchedOffList(hit)) return;
      return add(kPointBeyondCount, hit.keyAt, key + " is beyond the list's count and is not stored");
    default:
      break;
  }
  if (isText(*hit.row)) judgeText(hit);
  judgeTail(hit);
  judgeReplaced(hit, hit.valueAt);
  if (m_found.wants(kEqualsDefault) && !hit.row->isElement() && holdsDefault(hit)) {
    add(kEqualsDefault, hit.valueAt, key + " is " + shown(hit) + " by default");
  }
}

void Checker::judgeUnparsed(const Hit& hit) {
  const std::string keeps = "; " + std::string(hit.key) + " keeps " + shown(hit);
  const std::string_view value = trimmed(m_line->value(hit));
  if (value.empty()) return add(kUnparsedValue, hit.valueAt, "no value" + keeps);
  const bool outOfRange = hit.parsed.failure == ParseFailure::kRange;
  add(outOfRange ? kOutOfRange : kUnparsedValue, text().find(value, hit.valueAt),
      quoted(value) + " is no " + (isInt(*hit.row) ? "int" : "number") + (outOfRange ? " in range" : "") + keeps);
}

void Checker::judgeTail(const Hit& hit) {
  const std::string_view left = m_line->left(hit), rest = trimmed(left);
  const bool fraction = isInt(*hit.row) && left.starts_with('.');
  if (rest.empty() || (fraction && isZeroFraction(rest))) return;
  const std::string used =
      isText(*hit.row) ? shown(hit) : std::string(trimmed(m_line->convertedText(hit)).substr(0, kLongestShown));
  add(fraction ? kIntFraction : kTextAfterValue, hit.usedEnd,
      "reading stops here: " + used + " is used, " + quoted(rest) + " is ignored");
}

void Checker::judgeText(const Hit& hit) {
  if (hit.row->lookup == Lookup::kWord) return;
  const std::string_view value = m_line->value(hit);
  if (value.starts_with('\t')) {
    add(kTabBeforeText, hit.valueAt, "the tab becomes part of " + std::string(hit.key));
  }
  if (value.ends_with(' ') || value.ends_with('\t')) {
    add(kTrailingBlanks, text().find_last_not_of(" \t") + 1, "the blanks become part of " + std::string(hit.key));
  }
  judgeExtras(hit);
}

void Checker::judgeExtras(const Hit& hit) {
  const std::string_view value = m_line->value(hit), bare = trimmed(value);
  for (const std::string_view mark : {" #", "\t#", " //", "\t//"}) {
    const auto at = value.find(mark);
    if (at == value.npos) continue;
    return add(kExtrasInText, hit.valueAt + at + 1, "the comment becomes part of " + std::string(hit.key));
  }
  if (bare.starts_with('"') || bare.starts_with('\'')) {
    add(kExtrasInText, hit.valueAt + value.find(bare), "the quotation marks become part of " + std::string(hit.key));
  }
}

// --- Defaults, rules and repairs ----------------------------------------------------------------------------------

/// Null for a section that none of the tables has.
void* Checker::defaultsOf(const Section& section) {
  const BlockTable* table = m_names->tableOf(section);
  if (table == nullptr) return nullptr;
  void*& defaults = m_defaults[table];
  if (defaults == nullptr) defaults = table->create();
  return defaults;
}

bool Checker::holdsDefault(const Hit& hit) {
  void* const defaults = defaultsOf(*m_line->section);
  return defaults != nullptr && valueOf(*hit.row, hit.block) == valueOf(*hit.row, defaults);
}

bool Checker::isDefault(const Hit& hit, double value) {
  void* const defaults = defaultsOf(*m_line->section);
  if (defaults == nullptr) return false;
  const Field& field = hit.row->field;
  return field.type == FieldType::kInt ? field.in<int>(defaults) == static_cast<int>(value)
                                       : field.in<double>(defaults) == value;
}

// What the row's rule makes of a value outside of its range. The default in its place is what was meant, most often:
// many a file says 0 for it.
void Checker::judgeReplaced(const Hit& hit, std::size_t at) {
  const Replacement* replaced = hit.parsed.replaced;
  const Row& row = *hit.row;
  const double plain = hit.parsed.number * row.rule.scale;
  if (replaced == nullptr || replaced->value == plain || std::isnan(plain) || isDefault(hit, replaced->value)) return;
  const std::string held = number(replaced->value);
  if (replaced->when == Replacement::When::kEqual) {
    return add(kValueReplaced, at, number(plain) + " is read as " + held, "write " + held);
  }
  add(kValueReplaced, at,
      number(plain) + " is out of range for " + std::string(row.key.empty() ? row.field.member : row.key) + ": " +
          held + " is used");
}

void Checker::repaired(const RepairEvent& event) {
  const void* member = event.row->field.locate(event.block);
  if (event.before == event.after || !m_origins.contains(member)) return;
  auto [change, isNew] = m_changes.try_emplace(member, Change{event.before, event.after, {}});
  change->second.after = event.after;
  change->second.conditions += (isNew ? "" : ", ") + std::string(event.condition);
}

}  // namespace zeb
