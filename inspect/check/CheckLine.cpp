// One line of a keyed section, judged by what the reader found in it.
#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

#include "engine/SectionEngine.hpp"
#include "inspect/check/CheckObserver.hpp"
#include "inspect/check/CheckText.hpp"
#include "inspect/set/Settings.hpp"

namespace zeb {

namespace {

bool isStored(KeyOutcome outcome) { return outcome == KeyOutcome::kStored || outcome == KeyOutcome::kRefused; }

bool isPresence(const Row& row) { return row.lookup == Lookup::kPresence; }
bool isText(const Row& row) { return row.field.type == FieldType::kText; }
bool isInt(const Row& row) { return row.field.type == FieldType::kInt || row.lookup == Lookup::kInt; }

bool beginsNumber(std::string_view text) {
  text = trimmed(text);
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

bool isBareExponent(std::string_view text) {
  const auto mark = text.find_first_of("eE");
  return mark != text.npos && text.find_first_of("0123456789", mark) == text.npos;
}

// ".0" behind a whole number takes nothing away from it.
bool isZeroFraction(std::string_view tail) {
  return tail.starts_with('.') && tail.find_first_not_of('0', 1) == tail.npos;
}

// What the text holds that the conversion took.
std::string_view parsed(std::string_view value, std::string_view tail) {
  return trimmed(value.substr(0, value.size() - tail.size()));
}

// What a member holds, short enough for a message. A list may be long: of its elements only the text is shown.
std::string shown(const Row& row, void* block, std::string_view value, std::string_view tail) {
  if (row.store != nullptr) return std::string(parsed(value, tail).substr(0, 60));
  const std::string text = valueOf(row, block);
  return text.size() > 60 ? text.substr(0, 60) + "..." : text;
}

}  // namespace

void CheckObserver::finishLine() {
  if (m_section != nullptr && !m_section->isPositional() && !m_section->open.empty()) {
    if (!m_hits.empty()) {
      judgeHits();
    } else if (!m_judged) {
      judgeSectionLine();
    }
  }
  m_hits.clear();
  m_judged = true;
}

// --- Lines without a key ------------------------------------------------------------------------------------------

void CheckObserver::judgeSectionLine() {
  const std::string_view line = trimmed(m_text);
  if (line.empty() || isComment(line)) return;
  if (const Tag tag = tagOf(line, m_section->open.front())) return judgeTag(tag);
  if (m_nestedClose.empty()) judgeWithoutKey();
}

void CheckObserver::judgeTag(const Tag& tag) {
  const std::size_t at = m_text.find(tag.text);
  const std::string text(tag.text), outer = std::string(m_section->open);
  if (!tag.closes) {
    const Section* nested = m_names->sectionNamed(tag.name);
    m_nestedClose = nested != nullptr ? std::string(nested->close) : text.substr(0, 1) + "/" + text.substr(1);
    m_nestedSeen = true;
    add(CheckRule::kSectionInsideSection, at,
        text + " stands inside " + outer + " of line " + std::to_string(m_opening.line) + " and is not read",
        "close the section before with " + std::string(m_section->close));
    return;
  }
  if (tag.text == m_nestedClose) {
    m_nestedClose.clear();
    return;
  }
  // Among lost sections a stray closing is not why this one runs on.
  m_explained = m_explained || !m_nestedSeen;
  add(CheckRule::kWrongClosingTag, at, text + " does not close " + outer + " of line " + std::to_string(m_opening.line),
      "write " + std::string(m_section->close));
}

void CheckObserver::judgeWithoutKey() {
  const std::string_view name = nameOf(m_text);
  const std::size_t at = m_text.find(name);
  if (isListWord(*m_section, name)) {
    add(CheckRule::kListTooLong, at, "this entry belongs to no list, or stands behind the end of its list",
        "entries stand right below the line that announces them, as many as their count says");
    return;
  }
  if (!m_found.wants(CheckRule::kUnknownKey)) return m_found.skip(CheckRule::kUnknownKey);
  if (isOfOtherSolver(name)) return;
  const auto near = nearKeys(*m_section, name);
  if (m_text.find('=') == std::string::npos && near.empty()) return;
  const std::string elsewhere = m_names->sectionsWithKey(name);
  std::string hint;
  if (!elsewhere.empty()) hint = "it belongs to " + elsewhere;
  if (!near.empty() && near.front() != name && trimmed(near.front()) == name) {
    hint = "a blank must stand between " + std::string(name) + " and '='";
  } else if (!near.empty()) {
    hint += (hint.empty() ? "" : "; ") + ("did you mean " + orList(near) + "?");
  }
  add(CheckRule::kUnknownKey, at, quoted(name) + " is no key of " + std::string(m_section->open), hint);
}

// What one solver reads of a file that several share is no mistake to the others.
bool CheckObserver::isOfOtherSolver(std::string_view key) const {
  const Section* section = KnownNames::ofOtherSolver(m_kind).sectionNamed(m_section->name);
  return section != nullptr && (hasKey(*section, key) || isListWord(*section, key));
}

// --- Lines with keys ----------------------------------------------------------------------------------------------

void CheckObserver::judgeHits() {
  const Tag tag = tagOf(m_text, m_section->open.front());
  if (tag && m_text.find(m_section->close) == std::string::npos) judgeTag(tag);
  if (isComment(m_text)) return judgeComment();
  const Hit& own = *meantHit(static_cast<bool>(tag));
  if (own.outcome == KeyOutcome::kGated) {
    judgeGated(own);
  } else {
    judgeOwnKey(own);
  }
  judgeOtherKeys(own);
}

void CheckObserver::judgeComment() {
  std::string keys;
  std::size_t at = m_text.size();
  for (const Hit& hit : m_hits) {
    if (!isStored(hit.outcome)) continue;
    at = std::min(at, m_text.find(hit.key));
    keys +=
        (keys.empty() ? "" : ", ") + std::string(hit.key) + " to " + shown(*hit.row, hit.block, hit.value, hit.tail);
  }
  if (!keys.empty()) add(CheckRule::kCommentSetsKey, at, "the comment sets " + keys);
}

// The key that the line names; where it names none, the longest of the keys found is the one that was meant.
const CheckObserver::Hit* CheckObserver::meantHit(bool isTag) {
  const std::string_view name = nameOf(m_text);
  const Hit* own = nullptr;
  for (const Hit& hit : m_hits) {
    if (trimmed(hit.key) == name) own = &hit;
  }
  if (own != nullptr) return own;
  own = &*std::max_element(m_hits.begin(), m_hits.end(),
                           [](const Hit& a, const Hit& b) { return a.key.size() < b.key.size(); });
  if (isTag || isPresence(*own->row) || !isStored(own->outcome)) return own;
  if (!m_found.wants(CheckRule::kInexactKey)) return m_found.skip(CheckRule::kInexactKey), own;
  const auto near = nearKeys(*m_section, name);
  add(CheckRule::kInexactKey, m_text.find(own->key),
      quoted(name) + " is no key; the reader finds " + std::string(own->key) + " in the line and sets it to " +
          shown(*own->row, own->block, own->value, own->tail),
      near.empty() ? "" : "did you mean " + orList(near) + "?");
  return own;
}

void CheckObserver::judgeOwnKey(const Hit& hit) {
  const std::string key(hit.key);
  if (isStored(hit.outcome)) judgeRepeated(hit);
  if (isPresence(*hit.row)) return judgePresence(hit);
  const auto equals = m_text.find('=');
  if (equals == std::string::npos) {
    return add(CheckRule::kMissingEquals, m_text.find(hit.key) + key.size(),
               "no '=' behind " + key +
                   (isText(*hit.row) ? "; an empty text is stored"
                                     : "; " + key + " keeps " + shown(*hit.row, hit.block, hit.value, hit.tail)));
  }
  const auto second = m_text.find('=', equals + 1);
  if (second == std::string::npos || isText(*hit.row)) return judgeValue(hit);
  add(CheckRule::kSeveralEquals, second,
      "a second '='; " + key + (isStored(hit.outcome) ? " becomes " : " keeps ") +
          shown(*hit.row, hit.block, hit.value, hit.tail));
}

void CheckObserver::judgePresence(const Hit& hit) {
  const std::size_t behind = m_text.find(hit.key) + hit.key.size();
  const std::string_view rest = trimmed(std::string_view(m_text).substr(behind));
  const bool hasEquals = rest.starts_with('=');
  if (rest.empty() || (hit.row->list != nullptr && !hasEquals)) return;
  const std::string_view value = trimmed(rest.substr(hasEquals ? 1 : 0));
  constexpr std::string_view kOn[] = {"", "1", "true", "on", "yes"};
  if (hit.row->list == nullptr && std::find(std::begin(kOn), std::end(kOn), value) != std::end(kOn)) return;
  add(CheckRule::kPresenceValue, m_text.find(rest, behind),
      std::string(hit.key) + " is switched on by its presence; " + quoted(rest) + " is not read");
}

void CheckObserver::judgeRepeated(const Hit& hit) {
  const SetBy before = std::exchange(m_setAt[hit.row], {here(m_text.find(hit.key)), hit.key, hit.block});
  m_pending.erase(hit.row);
  if (before.place.line == 0) return;
  std::string message = std::string(hit.key) + " was set in line " + std::to_string(before.place.line) + " already";
  if (before.key != hit.key) message += ", as " + std::string(before.key);
  add(CheckRule::kKeyRepeated, m_text.find(hit.key),
      message + "; this line wins with " + shown(*hit.row, hit.block, hit.value, hit.tail) + forgetElements(*hit.row));
}

void CheckObserver::judgeValue(const Hit& hit) {
  const std::string key(hit.key);
  const std::size_t valueAt = m_text.size() - std::min(hit.value.size(), m_text.size());
  switch (hit.outcome) {
    case KeyOutcome::kUnparsed: {
      const std::string keeps = "; " + key + " keeps " + shown(*hit.row, hit.block, {}, {});
      const std::string_view value = trimmed(hit.value);
      if (value.empty()) return add(CheckRule::kUnparsedValue, valueAt, "no value" + keeps);
      const bool outOfRange = beginsNumber(value) && !isBareExponent(value);
      const std::string type = isInt(*hit.row) ? "int" : "number";
      return add(outOfRange ? CheckRule::kOutOfRange : CheckRule::kUnparsedValue, m_text.find(value, valueAt),
                 quoted(value) + " is no " + type + (outOfRange ? " in range" : "") + keeps);
    }
    case KeyOutcome::kRefused:
      return add(CheckRule::kCountRefused, valueAt, countRefused());
    case KeyOutcome::kNotStored:
      if (losesNothing(hit) || isOfSwitchedOffList(hit)) return;
      return add(CheckRule::kPointBeyondCount, m_text.find(hit.key),
                 key + " is beyond the list's count and is not stored");
    default:
      break;
  }
  if (isText(*hit.row)) judgeText(hit);
  judgeTail(hit);
  double typed = 0.0;
  if (extractDouble(hit.value, typed) > 0) judgeReplaced(*m_section, *hit.row, hit.block, typed, valueAt);
  if (m_found.wants(CheckRule::kEqualsDefault) && hit.row->store == nullptr &&
      holdsDefault(*m_section, *hit.row, hit.block)) {
    add(CheckRule::kEqualsDefault, valueAt,
        key + " is " + shown(*hit.row, hit.block, hit.value, hit.tail) + " by default");
  }
}

void CheckObserver::judgeTail(const Hit& hit) {
  const std::string_view rest = trimmed(hit.tail);
  const bool fraction = isInt(*hit.row) && hit.tail.starts_with('.');
  if (rest.empty() || (fraction && isZeroFraction(rest))) return;
  const std::size_t at = m_text.size() - std::min(hit.tail.size(), m_text.size());
  const std::string used = isText(*hit.row) ? shown(*hit.row, hit.block, hit.value, hit.tail)
                                            : std::string(parsed(hit.value, hit.tail).substr(0, 60));
  add(fraction ? CheckRule::kIntFraction : CheckRule::kTextAfterValue, at,
      "reading stops here: " + used + " is used, " + quoted(rest) + " is ignored");
}

void CheckObserver::judgeText(const Hit& hit) {
  if (hit.row->lookup == Lookup::kWord) return;
  const std::size_t at = m_text.size() - std::min(hit.value.size(), m_text.size());
  if (hit.value.starts_with('\t')) {
    add(CheckRule::kTabBeforeText, at, "the tab becomes part of " + std::string(hit.key));
  }
  if (hit.value.ends_with(' ') || hit.value.ends_with('\t')) {
    const auto last = m_text.find_last_not_of(" \t");
    add(CheckRule::kTrailingBlanks, last + 1, "the blanks become part of " + std::string(hit.key));
  }
  judgeExtras(hit, at);
}

void CheckObserver::judgeExtras(const Hit& hit, std::size_t valueAt) {
  const std::string_view value = hit.value, text = trimmed(value);
  for (const std::string_view mark : {" #", "\t#", " //", "\t//"}) {
    const auto at = value.find(mark);
    if (at == value.npos) continue;
    return add(CheckRule::kExtrasInText, valueAt + at + 1, "the comment becomes part of " + std::string(hit.key));
  }
  if (text.starts_with('"') || text.starts_with('\'')) {
    add(CheckRule::kExtrasInText, valueAt + value.find(text),
        "the quotation marks become part of " + std::string(hit.key));
  }
}

void CheckObserver::judgeOtherKeys(const Hit& own) {
  for (const Hit& hit : m_hits) {
    if (hit.key == own.key || hit.row == own.row || !isStored(hit.outcome)) continue;  // one key, several members
    const auto earlier = m_setAt.find(hit.row);
    std::string message =
        "the line also sets " + std::string(hit.key) + " to " + shown(*hit.row, hit.block, hit.value, hit.tail);
    if (earlier != m_setAt.end()) message += ", against line " + std::to_string(earlier->second.place.line);
    const std::size_t inKey = own.key.find(hit.key);
    const std::size_t at = inKey == own.key.npos ? m_text.find(hit.key) : m_text.find(own.key) + inKey;
    m_pending[hit.row] = {here(at), std::move(message)};
  }
}

// --- Gates and defaults -------------------------------------------------------------------------------------------

void CheckObserver::judgeGated(const Hit& hit) {
  if (m_gated.size() >= DiagnosticList::kMostPerRule) return m_found.skip(CheckRule::kKeyGated);
  if (losesNothing(hit)) return;
  const Row& gate = m_section->rows[m_section->readingOrder[static_cast<std::size_t>(m_section->gate)]];
  const std::string stays =
      hit.row->store != nullptr ? std::string("its point") : shown(*hit.row, hit.block, hit.value, hit.tail);
  m_gated.push_back({here(m_text.find(hit.key)), std::string(hit.key), stays, valueOf(gate, hit.block), m_gateSetAt});
}

// Whether the solver ends up with the line's value although it ignores the line: read with the gate open, the line
// stores what is there already.
bool CheckObserver::losesNothing(const Hit& hit) const {
  if (hit.row->store != nullptr) {
    double coordinate = 0.0;  // points are made at the origin
    return extractDouble(hit.value, coordinate) > 0 && coordinate == 0.0;
  }
  const BlockTable* table = m_names->tableOf(*m_section);
  if (table == nullptr) return false;
  void* trial = table->create();
  const Row& gate = m_section->rows[m_section->readingOrder[static_cast<std::size_t>(m_section->gate)]];
  *static_cast<int*>(gate.field.locate(trial)) = gate.gateBelow;
  std::istringstream text(m_text + "\n" + std::string(m_section->close) + "\n");
  const LineSource source{};
  LineReader lines(text, source, nullptr);
  readSection(*m_section, trial, lines);
  const bool same = valueOf(*hit.row, trial) == valueOf(*hit.row, hit.block);
  table->destroy(trial);
  return same;
}

// Entries may stay in the file while a count that is not above 0 says that none is wanted.
bool CheckObserver::isOfSwitchedOffList(const Hit& hit) const {
  return std::any_of(m_setAt.begin(), m_setAt.end(), [&](const auto& known) {
    const Row& row = *known.first;
    return row.lines.toEndOfFile && fills(row, *hit.row) && *static_cast<const int*>(row.field.locate(hit.block)) <= 0;
  });
}

/// Null for a section that none of the tables has.
void* CheckObserver::defaultsOf(const Section& section) {
  const BlockTable* table = m_names->tableOf(section);
  if (table == nullptr) return nullptr;
  void*& defaults = m_defaults[table];
  if (defaults == nullptr) defaults = table->create();
  return defaults;
}

bool CheckObserver::holdsDefault(const Section& section, const Row& row, void* block) {
  void* const defaults = defaultsOf(section);
  return defaults != nullptr && valueOf(row, block) == valueOf(row, defaults);
}

// What the row's rule makes of a value outside of its range. The default in its place is what was meant, most often:
// many a file says 0 for it.
void CheckObserver::judgeReplaced(const Section& section, const Row& row, void* block, double typed, std::size_t at) {
  if (row.rule.none() || row.store != nullptr) return;
  const bool asInt = isInt(row);
  const double plain = (asInt ? std::trunc(typed) : typed) * row.rule.scale;
  const void* member = row.field.locate(block);
  const double held =
      row.field.type == FieldType::kInt ? *static_cast<const int*>(member) : *static_cast<const double*>(member);
  if (held == plain || std::isnan(typed) || holdsDefault(section, row, block)) return;
  const auto standsForAnother = [&](const Replacement& replacement) {
    return replacement.when == Replacement::When::kEqual && replacement.limit == plain;
  };
  if (std::any_of(std::begin(row.rule.replace), std::end(row.rule.replace), standsForAnother)) {
    return add(CheckRule::kValueReplaced, at, number(plain) + " is read as " + number(held), "write " + number(held));
  }
  add(CheckRule::kValueReplaced, at,
      number(plain) + " is out of range for " + std::string(row.key.empty() ? row.field.member : row.key) + ": " +
          number(held) + " is used");
}

}  // namespace zeb
