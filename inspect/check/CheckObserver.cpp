#include "inspect/check/CheckObserver.hpp"

#include <algorithm>

#include "engine/ParameterTable.hpp"
#include "engine/ValueText.hpp"
#include "inspect/check/CheckRawFile.hpp"
#include "inspect/check/CheckText.hpp"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/Settings.hpp"

namespace zeb {

namespace {

std::size_t orStart(std::size_t at) { return at == std::string::npos ? 0 : at; }

}  // namespace

CheckObserver::~CheckObserver() {
  for (const auto& [table, block] : m_defaults) table->destroy(block);
}

void CheckObserver::add(CheckRule rule, std::size_t at, std::string message, std::string hint) {
  m_isAnythingSaid = true;
  m_found.add(rule, m_line, m_text, orStart(at), std::move(message), std::move(hint));
}

// --- Files and lines ----------------------------------------------------------------------------------------------

void CheckObserver::fileStarted(std::string_view fileName) {
  finishLine();
  endSection();
  m_text.clear();
  m_line = 0;
  m_unknownSection.clear();
  m_positional = nullptr;
  if (m_files++ == 0) return;
  // The viscoelastic file's name is the reader's to derive, so its bytes are looked at here.
  m_names = &KnownNames::ofViscoelasticFile();
  m_found.startFile(std::string(fileName));
  checkRawFile(std::string(fileName), m_found);
}

void CheckObserver::lineRead(int lineNumber, std::string_view line) {
  finishLine();
  m_textBefore.swap(m_text);
  m_text = line;
  m_line = lineNumber;
  ++m_linesSinceOpening;
  m_judged = false;
}

void CheckObserver::versionRead(int /*lineNumber*/, std::string_view /*line*/, bool parsed, int version) {
  m_judged = true;
  m_isAnythingRead = true;
  if ((parsed && KnownNames::isHeadVersion(version)) || (isComment(m_text) && !parsed)) return;
  add(CheckRule::kVersionUnknown, m_text.find("[VER]"),
      parsed ? "version " + std::to_string(version) + " is unknown; no head is read"
             : "the version line holds no version; no head is read");
}

void CheckObserver::lineOutside(int /*lineNumber*/, std::string_view line) {
  if (m_judged) return;  // a version line, reported once its head has been read
  m_judged = true;
  if (isComment(line) || trimmed(line).empty()) return;
  if (m_firstText.line == 0 && !isCompanion()) m_firstText = here(line.find(trimmed(line)));
  if (const Tag tag = tagOf(line, m_names->bracket())) return judgeTagOutside(tag);
  const std::string_view name = nameOf(line);
  if (!m_unknownSection.empty() || (line.find('=') == line.npos && !m_names->isPresenceKey(name))) return;
  const std::string sections = m_names->sectionsWithKey(name);
  if (sections.empty()) return;
  add(CheckRule::kKeyOutsideSection, line.find(name), quoted(name) + " stands outside of every section and is ignored",
      "it belongs to " + sections);
}

void CheckObserver::judgeTagOutside(const Tag& tag) {
  const std::size_t at = m_text.find(tag.text);
  const std::string text(tag.text);
  if (tag.closes) {
    const bool expected = tag.name == m_unknownSection || (m_positional != nullptr && m_positional->name == tag.name);
    m_unknownSection.clear();
    m_positional = nullptr;
    if (!expected) add(CheckRule::kCloseWithoutOpen, at, text + " closes a section that is not open");
    return;
  }
  m_unknownSection = tag.name;
  if (const Section* others = KnownNames::ofOtherSolver(m_kind).sectionNamed(tag.name)) {
    m_isAnythingRead = true;
    m_unknownSection = tagOf(others->close, m_names->bracket()).name;  // not always the opening's
    return;
  }
  if (!m_found.wants(CheckRule::kUnknownSection)) return m_found.skip(CheckRule::kUnknownSection);
  const auto near = m_names->nearSections(tag.name);
  std::string hint;
  if (!near.empty()) {
    const Section& section = *m_names->sectionNamed(near.front());
    hint = "did you mean " + std::string(section.open) + "?";
    if (equalWithoutCase(section.name, tag.name)) hint += " Section names are case-sensitive";
  }
  add(CheckRule::kUnknownSection, at, text + " is no section; its lines are ignored", hint);
}

// --- Sections -----------------------------------------------------------------------------------------------------

void CheckObserver::sectionOpened(const Section& section, int /*lineNumber*/) {
  m_judged = true;
  endSection();
  m_section = &section;
  m_unknownSection.clear();
  m_positionalShort = false;
  m_linesSinceOpening = 0;
  m_tagInFreeLine = {};
  m_isAnythingRead = true;
  m_explained = false;
  const bool isFirst = m_text.find(section.open) != m_text.npos;
  if (isFirst) {
    m_openingText = m_text;
    m_opening = here(m_text.find(section.open));
  } else {
    // The line that opened the section before opened this one, too.
    m_opening = placeIn(m_opening.line, m_openingText, orStart(m_openingText.find(section.open)));
    m_found.add(CheckRule::kSectionInsideSection, m_opening,
                std::string(section.open) + " stands in the line of another opening; it is read from line " +
                    std::to_string(m_line + 1) + " on, behind that section's end",
                "give each opening a line of its own");
  }
  if (section.open.empty()) return;
  if (isComment(m_openingText)) {
    m_found.add(CheckRule::kCommentOpensSection, m_opening, "the comment opens " + std::string(section.open));
  }
  int& first = m_sectionsSeen[&section];
  if (first > 0) {
    m_found.add(CheckRule::kSectionRepeated, m_opening,
                std::string(section.open) + " stood in line " + std::to_string(first) + " already; later values win");
  }
  if (first == 0) first = m_opening.line;
  if (isFirst) judgeBesideTag(section.open);
}

void CheckObserver::sectionClosed(const Section& section, int /*lineNumber*/) {
  const bool endsList = m_judged;  // a list took the closing line
  if (m_hits.empty()) m_judged = true;
  if (isComment(m_text) && m_text.find(section.close) != m_text.npos) {
    add(CheckRule::kCommentClosesSection, m_text.find(section.close),
        "the comment closes " + std::string(section.open));
  }
  finishLine();
  if (!endsList && !section.closingLineIsRead) judgeBesideTag(section.close);
  endSection();
}

// Keys in the line of an opening or of a closing are not looked for.
void CheckObserver::judgeBesideTag(std::string_view tag) {
  if (m_section == nullptr || m_text.find('=') == m_text.npos) return;
  std::string rest = m_text;
  rest.replace(orStart(rest.find(tag)), tag.size(), tag.size(), ' ');
  const std::string_view name = nameOf(rest);
  if (!hasKey(*m_section, name)) return;
  add(CheckRule::kKeyOutsideSection, rest.find(name),
      quoted(name) + " stands in the line of " + std::string(tag) + " and is ignored",
      "give it a line of its own between opening and closing");
}

void CheckObserver::sectionUnclosed(const Section& section, int /*lineNumber*/) {
  finishLine();
  endList();
  if (!m_explained) {
    m_found.add(CheckRule::kUnclosedSection, m_opening,
                std::string(section.open) + " is never closed: it takes the rest of the file",
                "add a line " + std::string(section.close));
  }
  endSection();
}

void CheckObserver::sectionRefused(const Section& section, int /*lineNumber*/, int version) {
  m_judged = true;
  const Row& row = *section.positional.slots.front().row;
  const std::string open(section.open);
  int parsed = 0;
  if (m_linesSinceOpening == 0) {
    m_found.add(CheckRule::kPositionalTooShort, m_opening, open + " has none of its lines; the file ends");
  } else {
    add(CheckRule::kPositionalVersion, 0,
        (FieldScanner(m_text).next(parsed) ? "version " + std::to_string(version) + " is not the one of " + open
                                           : "the version of " + open + " is expected here") +
            "; nothing of the section is read",
        "write " + valueOf(row, defaultsOf(section)) + " in the line behind " + open);
  }
  m_positional = &section;
  m_section = nullptr;
}

void CheckObserver::endSection() {
  endList();
  judgeMissingElements();
  for (auto& [key, pending] : m_pending) {
    m_found.add(CheckRule::kSeveralKeys, std::move(pending.place), std::move(pending.message));
  }
  // Whether the gate opens further down is known only now.
  for (const Gated& gated : m_gated) reportGated(gated);
  m_gated.clear();
  m_gateSetAt = m_gateOpenedAt = 0;
  m_pending.clear();
  m_setAt.clear();
  m_nestedClose.clear();
  m_nestedSeen = false;
  m_section = nullptr;
}

void CheckObserver::reportGated(const Gated& gated) {
  const Row& gate = m_section->rows[m_section->readingOrder[static_cast<std::size_t>(m_section->gate)]];
  const std::string name(gate.key), kept = "; " + gated.key + " keeps " + gated.stays;
  if (m_gateOpenedAt > gated.place.line) {
    m_found.add(CheckRule::kKeyAboveGate, gated.place,
                gated.key + " is ignored: " + name + ", which opens it, stands in line " +
                    std::to_string(m_gateOpenedAt) + kept);
    return;
  }
  m_found.add(CheckRule::kKeyGated, gated.place,
              gated.key + " is ignored: " + name + " is " + gated.gateValue +
                  (gated.gateSetAt > 0 ? " since line " + std::to_string(gated.gateSetAt) : " by default") + kept,
              "set " + name + " to " + std::to_string(gate.gateBelow) + " or more above it, or remove the line");
}

// --- Keys and repairs ---------------------------------------------------------------------------------------------

void CheckObserver::keyFound(const KeyEvent& event) {
  const void* member = event.row.field.locate(event.block);
  const bool stored = event.outcome == KeyOutcome::kStored;
  const auto at = event.key.empty() ? offsetIn(event.line, trimmed(event.value)) : event.line.find(event.key);
  if (stored && !isCompanion()) m_origins[member] = placeIn(m_line, event.line, orStart(at));
  if (event.key.empty()) {
    if (event.section.isPositional() || event.section.open.empty()) judgeField(event, orStart(at));
    return;
  }
  m_hits.push_back(
      {&event.row, event.block, event.key, event.outcome, std::string(event.value), std::string(event.tail)});
  if (event.row.gateBelow != kNoGate && stored) {
    m_gateSetAt = m_line;
    if (*static_cast<const int*>(member) >= event.row.gateBelow) m_gateOpenedAt = m_line;
  }
  if (event.row.list != nullptr && stored) startList(event);
}

void CheckObserver::viscoelasticRefused(int lineNumber, std::string_view reason) {
  finishLine();
  lineNumber = std::min(lineNumber, m_line);  // the file may end before the line that decides
  // What line 8 says is judged when line 9 has been read.
  m_found.add(CheckRule::kViscoelasticRefused, lineNumber, lineNumber == m_line ? m_text : m_textBefore, 0,
              std::string(reason) + "; nothing of it is used, and a solver writes a default file in its place");
  m_section = nullptr;
}

void CheckObserver::repaired(const RepairEvent& event) {
  if (event.before == event.after || !m_origins.contains(event.memberAddress)) return;
  auto [change, isNew] = m_changes.try_emplace(event.memberAddress, Change{event.before, event.after, {}});
  change->second.after = event.after;
  change->second.conditions += (isNew ? "" : ", ") + std::string(event.condition);
}

void CheckObserver::finish() {
  finishLine();
  m_found.continueFile(m_mainFile);
  if (m_firstText.line > 0 && !m_isAnythingRead && !m_isAnythingSaid) {
    m_found.add(CheckRule::kNothingRead, m_firstText,
                "no line opens a section or announces a head: nothing of the file is used");
  }
  for (const auto& [member, change] : m_changes) {
    if (change.before == change.after) continue;
    m_found.add(CheckRule::kRepairedValue, m_origins[member],
                "the repairs change the value from " + number(change.before) + " to " + number(change.after) + " (" +
                    change.conditions + ")");
  }
}

}  // namespace zeb
