// Which key a line means and which keys it sets.
#include <algorithm>

#include "inspect/check/Checker.hpp"
#include "inspect/check/Wording.hpp"

namespace zeb {

const CheckRule kUnknownKey{
    "unknown-key",
    "A line of a section sets no key.",
    "correct the key or remove the line",
    "Lines that hold none of the section's keys are skipped in silence, so a misspelt key leaves its "
    "parameter at the default. The nearest keys of the section are named, and the sections that do have "
    "the key. What another solver reads of the same file is not reported.",
    {"[Outlet]\nIzOutlet = 1\n[/Outlet]\n", 2, 1, "'IzOutlet' is no key of [Outlet]",
     "[Outlet]\nIsOutlet = 1\n[/Outlet]\n"}};

const CheckRule kInexactKey{
    "inexact-key",
    "A key is only found inside a longer name.",
    "write the key alone",
    "Keys are found anywhere in a line, also inside a longer name. The line sets the key that it happens "
    "to hold.",
    {"[ShortShot]\nOldTimeLimit = 2\n[/ShortShot]\n", 2, 4,
     "'OldTimeLimit' is no key; the reader finds TimeLimit in the line and sets it to 2",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"}};

const CheckRule kSeveralKeys{
    "several-keys",
    "One line sets further keys, because their names stand in it.",
    "set the other key on a later line",
    "Every key of the section is looked for in every line. A key whose name is part of a longer key is "
    "set by the longer one's line, too, unless a later line sets it.",
    {"[General]\nFixCompressionFaceCK = 1\n[/General]\n", 2, 4, "the line also sets CompressionFaceCK to 1",
     "[General]\nFixCompressionFaceCK = 1\nCompressionFaceCK = 40\n"
     "[/General]\n"}};

const CheckRule kCommentSetsKey{
    "comment-sets-key",
    "A comment holds a key of its section and sets it.",
    "comments do not hide keys: move it out of the section or change the key's name in it",
    "The reader knows no comments: a key in a comment inside of its section is set to what follows the "
    "first '=', a text to an empty one where there is none.",
    {"[ShortShot]\n# TimeLimit = 2\n[/ShortShot]\n", 2, 3, "the comment sets TimeLimit to 2",
     "[ShortShot]\n# the limit of the time is 2\n[/ShortShot]\n"}};

void Checker::judgeKeyed() {
  if (!m_hits.empty()) return judgeHits();
  if (m_line->part == ReadLine::Part::kEntry || m_line->end) return;
  const std::string_view line = trimmed(text());
  if (line.empty() || isComment(line)) return;
  if (const Tag tag = tagOf(line, m_section->open.front())) return judgeTagInside(tag);
  if (m_nestedClose.empty()) judgeWithoutKey();
}

void Checker::judgeWithoutKey() {
  const std::string_view name = nameOf(text());
  const std::size_t at = text().find(name);
  if (isListWord(*m_section, name)) {
    add(kListTooLong, at, "this entry belongs to no list, or stands behind the end of its list",
        "entries stand right below the line that announces them, as many as their count says");
    return;
  }
  if (!m_found.wants(kUnknownKey)) return m_found.skip(kUnknownKey);
  if (isOfOtherSolver(name)) return;
  const auto near = nearKeys(*m_section, name);
  if (text().find('=') == text().npos && near.empty()) return;
  const std::string elsewhere = m_names->sectionsWithKey(name);
  std::string hint;
  if (!elsewhere.empty()) hint = "it belongs to " + elsewhere;
  if (!near.empty() && near.front() != name && trimmed(near.front()) == name) {
    hint = "a blank must stand between " + std::string(name) + " and '='";
  } else if (!near.empty()) {
    hint += (hint.empty() ? "" : "; ") + ("did you mean " + orList(near) + "?");
  }
  add(kUnknownKey, at, quoted(name) + " is no key of " + std::string(m_section->open), hint);
}

// What one solver reads of a file that several share is no mistake to the others.
bool Checker::isOfOtherSolver(std::string_view key) const {
  const Section* section = KnownNames::ofOtherSolver(m_kind).sectionNamed(m_section->name);
  return section != nullptr && (hasKey(*section, key) || isListWord(*section, key));
}

void Checker::judgeHits() {
  const Tag tag = tagOf(text(), m_section->open.front());
  if (tag && text().find(m_section->close) == text().npos) judgeTagInside(tag);
  if (isComment(text())) return judgeComment();
  const Hit& own = *meantHit(static_cast<bool>(tag));
  if (own.outcome == KeyOutcome::kGated) {
    judgeGated(own);
  } else {
    judgeOwnKey(own);
  }
  judgeOtherKeys(own);
}

void Checker::judgeComment() {
  std::string keys;
  std::size_t at = text().size();
  for (const Hit* hit : m_hits) {
    if (!hit->sets()) continue;
    at = std::min(at, hit->keyAt);
    keys += (keys.empty() ? "" : ", ") + std::string(hit->key) + " to " + shown(*hit);
  }
  if (!keys.empty()) add(kCommentSetsKey, at, "the comment sets " + keys);
}

// The key that the line names; where it names none, the longest of the keys found is the one that was meant.
const Hit* Checker::meantHit(bool isTag) {
  const std::string_view name = nameOf(text());
  const Hit* own = nullptr;
  for (const Hit* hit : m_hits) {
    if (trimmed(hit->key) == name) own = hit;
  }
  if (own != nullptr) return own;
  own = *std::max_element(m_hits.begin(), m_hits.end(),
                          [](const Hit* a, const Hit* b) { return a->key.size() < b->key.size(); });
  if (isTag || own->row->lookup == Lookup::kPresence || !own->sets()) return own;
  if (!m_found.wants(kInexactKey)) return m_found.skip(kInexactKey), own;
  const auto near = nearKeys(*m_section, name);
  add(kInexactKey, own->keyAt,
      quoted(name) + " is no key; the reader finds " + std::string(own->key) + " in the line and sets it to " +
          shown(*own),
      near.empty() ? "" : "did you mean " + orList(near) + "?");
  return own;
}

void Checker::judgeOtherKeys(const Hit& own) {
  for (const Hit* hit : m_hits) {
    if (hit->key == own.key || hit->row == own.row || !hit->sets()) continue;  // one key, several members
    const auto earlier = m_setAt.find(hit->row);
    std::string message = "the line also sets " + std::string(hit->key) + " to " + shown(*hit);
    if (earlier != m_setAt.end()) message += ", against line " + std::to_string(earlier->second.place.line);
    const std::size_t inKey = own.key.find(hit->key);
    m_pending[hit->row] = {here(inKey == own.key.npos ? hit->keyAt : own.keyAt + inKey), std::move(message)};
  }
}

}  // namespace zeb
