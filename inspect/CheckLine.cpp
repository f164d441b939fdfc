// One line of a keyed section, judged by what the reader found in it.
#include <algorithm>

#include "frame/ParameterTable.hpp"
#include "frame/ValueText.hpp"
#include "inspect/CheckNames.hpp"
#include "inspect/CheckObserver.hpp"
#include "inspect/Settings.hpp"

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

std::string quotedTag(std::string_view tag) { return "[" + std::string(tag) + "]"; }

bool isBareExponent(std::string_view text) {
  const auto mark = text.find_first_of("eE");
  return mark != text.npos && text.find_first_of("0123456789", mark) == text.npos;
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

void CheckObserver::judgeSectionLine() {
  const std::string_view line = trimmed(m_text);
  if (line.empty() || isComment(line)) return;
  const std::string_view tag = tagOf(line, m_section->open.front());
  if (!tag.empty()) return judgeTag(tag);
  if (m_nested.empty()) judgeWithoutKey();
}

void CheckObserver::judgeTag(std::string_view tag) {
  const std::size_t at = m_text.find(m_section->open.front());
  if (!tag.starts_with('/')) {
    m_nested = tag;
    add(CheckRule::kSectionInsideSection, at,
        quotedTag(tag) + " stands inside " + std::string(m_section->open) + " of line " +
            std::to_string(m_opening.line) + " and is not read",
        "close the section before with " + std::string(m_section->close));
    return;
  }
  if (tag.substr(1) == m_nested) {
    m_nested.clear();
    return;
  }
  m_explained = true;
  add(CheckRule::kWrongClosingTag, at, quotedTag(tag) + " does not close " + std::string(m_section->open),
      "write " + std::string(m_section->close));
}

void CheckObserver::judgeWithoutKey() {
  const std::string_view name = nameOf(m_text);
  const std::size_t at = m_text.find(name);
  if (isListWord(*m_section, name)) {
    add(CheckRule::kListTooLong, at, "this entry belongs to no list, or stands behind the end of its list");
    return;
  }
  if (!m_found.wants(CheckRule::kUnknownKey)) return m_found.skip(CheckRule::kUnknownKey);
  const auto near = nearKeys(*m_section, name);
  if (m_text.find('=') == std::string::npos && near.empty()) return;
  const std::string elsewhere = sectionsWithKey(name);
  std::string hint;
  if (!elsewhere.empty()) hint = "it belongs to " + elsewhere;
  if (!near.empty()) hint += (hint.empty() ? "" : "; ") + ("did you mean " + joined(near) + "?");
  add(CheckRule::kUnknownKey, at, "'" + std::string(name) + "' is no key of " + std::string(m_section->open), hint);
}

void CheckObserver::judgeHits() {
  const std::string_view tag = tagOf(m_text, m_section->open.front());
  if (!tag.empty() && m_text.find(m_section->close) == std::string::npos) judgeTag(tag);
  if (isComment(m_text)) {
    std::string keys;
    std::size_t at = m_text.size();
    for (const Hit& hit : m_hits) {
      if (!isStored(hit.outcome)) continue;
      at = std::min(at, m_text.find(hit.key));
      keys += (keys.empty() ? "" : ", ") + std::string(hit.key) + " to " + valueOf(*hit.row, hit.block);
    }
    if (!keys.empty()) add(CheckRule::kCommentSetsKey, at, "the comment sets " + keys);
    return;
  }
  const std::string_view name = nameOf(m_text);
  const Hit* own = nullptr;
  for (const Hit& hit : m_hits) {
    if (trimmed(hit.key) == name) own = &hit;
  }
  if (own == nullptr) {
    // The longest of the keys found is the one that was meant.
    own = &*std::max_element(m_hits.begin(), m_hits.end(),
                             [](const Hit& a, const Hit& b) { return a.key.size() < b.key.size(); });
    const bool positional = isPresence(*own->row);
    if (tag.empty() && !positional && isStored(own->outcome)) {
      const auto near = nearKeys(*m_section, name);
      add(CheckRule::kInexactKey, m_text.find(own->key),
          "'" + std::string(name) + "' is no key; the reader finds " + std::string(own->key) +
              " in the line and sets it to " + valueOf(*own->row, own->block),
          near.empty() ? "" : "did you mean " + joined(near) + "?");
    }
  }
  if (own->outcome == KeyOutcome::kGated) {
    judgeGated(*own);
  } else {
    judgeOwnKey(*own);
  }
  judgeOtherKeys(own);
}

void CheckObserver::judgeGated(const Hit& hit) {
  if (m_gated.size() < DiagnosticList::kMostPerRule) {
    m_gated.push_back({{m_line, m_text.substr(0, 400), m_text.find(hit.key)}, std::string(hit.key)});
  }
}

void CheckObserver::judgeOwnKey(const Hit& hit) {
  const std::string key(hit.key);
  const std::size_t at = m_text.find(hit.key);
  int& setAt = m_setAt[hit.key];
  if (setAt > 0) {
    add(CheckRule::kKeyRepeated, at, key + " was set in line " + std::to_string(setAt) + " already; this line wins");
  }
  setAt = m_line;
  m_pending.erase(hit.key);
  const auto equals = m_text.find('=');
  if (isPresence(*hit.row)) return;
  if (equals == std::string::npos) {
    return add(CheckRule::kMissingEquals, at + key.size(),
               "no '=' behind " + key + (isText(*hit.row) ? "; an empty text is stored" : "; nothing is stored"));
  }
  const auto second = m_text.find('=', equals + 1);
  if (second != std::string::npos && !isText(*hit.row)) {
    return add(CheckRule::kSeveralEquals, second,
               "a second '='; " + (isStored(hit.outcome) ? key + " becomes " + valueOf(*hit.row, hit.block)
                                                         : std::string("nothing is stored")));
  }
  const std::size_t valueAt = m_text.size() - std::min(hit.value.size(), m_text.size());
  switch (hit.outcome) {
    case KeyOutcome::kUnparsed: {
      const bool outOfRange = beginsNumber(hit.value) && !isBareExponent(hit.value);
      add(outOfRange ? CheckRule::kOutOfRange : CheckRule::kUnparsedValue, valueAt,
          trimmed(hit.value).empty() ? "no value; " + key + " keeps " + valueOf(*hit.row, hit.block)
                                     : "'" + std::string(trimmed(hit.value)).substr(0, 60) + "' is no " +
                                           (isInt(*hit.row) ? "int" : "number") + (outOfRange ? " in range" : "") +
                                           "; " + key + " keeps " + valueOf(*hit.row, hit.block));
      return;
    }
    case KeyOutcome::kRefused:
      return add(CheckRule::kCountRefused, valueAt, "the count is outside of 0 to 1000000; 0 is used");
    case KeyOutcome::kNotStored:
      return add(CheckRule::kPointBeyondCount, at, key + " is beyond the list's count and is not stored");
    default:
      break;
  }
  if (isText(*hit.row)) judgeText(hit);
  judgeTail(hit);
  if (isDefault(hit)) {
    add(CheckRule::kEqualsDefault, valueAt, key + " is " + valueOf(*hit.row, hit.block) + " by default");
  }
}

void CheckObserver::judgeTail(const Hit& hit) {
  const std::string_view rest = trimmed(hit.tail);
  if (rest.empty()) return;
  const std::size_t at = m_text.size() - std::min(hit.tail.size(), m_text.size());
  const std::string used =
      isText(*hit.row)
          ? valueOf(*hit.row, hit.block)
          : std::string(trimmed(std::string_view(hit.value).substr(0, hit.value.size() - hit.tail.size())));
  const bool fraction = isInt(*hit.row) && hit.tail.starts_with('.');
  add(fraction ? CheckRule::kIntFraction : CheckRule::kTextAfterValue, at,
      "reading stops here: " + used + " is used, '" + std::string(rest).substr(0, 60) + "' is ignored");
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
}

void CheckObserver::judgeOtherKeys(const Hit* own) {
  for (const Hit& hit : m_hits) {
    if (hit.key == own->key || hit.row == own->row || !isStored(hit.outcome)) continue;  // one key, several members
    const auto earlier = m_setAt.find(hit.key);
    std::string message = "the line also sets " + std::string(hit.key) + " to " + valueOf(*hit.row, hit.block);
    if (earlier != m_setAt.end()) message += ", against line " + std::to_string(earlier->second);
    const std::size_t inKey = own->key.find(hit.key);
    const std::size_t at = inKey == own->key.npos ? m_text.find(hit.key) : m_text.find(own->key) + inKey;
    m_pending[hit.key] = {{m_line, m_text.substr(0, 400), at}, std::move(message)};
  }
}

bool CheckObserver::isDefault(const Hit& hit) const {
  if (!m_found.wants(CheckRule::kEqualsDefault)) return false;
  for (const BlockEntry& block : allBlocks()) {
    const auto sections = block.table().sections;
    if (std::none_of(sections.begin(), sections.end(), [&](const Section& s) { return &s == m_section; })) continue;
    void* defaults = block.table().create();
    const bool same = valueOf(*hit.row, hit.block) == valueOf(*hit.row, defaults);
    block.table().destroy(defaults);
    return same;
  }
  return false;
}

}  // namespace zeb
