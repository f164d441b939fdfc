// Files, sections and their tags.
#include <algorithm>

#include "inspect/check/Bytes.hpp"
#include "inspect/check/Checker.hpp"
#include "inspect/check/Wording.hpp"
#include "inspect/set/Inspection.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

namespace zeb {

const CheckRule kUnknownSection{
    "unknown-section",
    "An opening names no section; its lines are ignored.",
    "compparm list names the sections",
    "A section opens only where its name stands exactly, letter case included. Lines outside of sections "
    "are ignored: all of its keys keep their defaults.",
    {"[outlet]\nIsOutlet = 1\n[/outlet]\n", 1, 1, "[outlet] is no section; its lines are ignored",
     "[Outlet]\nIsOutlet = 1\n[/Outlet]\n"}};

const CheckRule kKeyOutsideSection{
    "key-outside-section",
    "A key stands outside of every section.",
    "move the line into its section",
    "A key counts only between the opening and the closing line of its section. In the lines of the opening "
    "and the closing themselves it does not count either.",
    {"TimeLimit = 2\n", 1, 1, "'TimeLimit' stands outside of every section and is ignored",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"}};

const CheckRule kUnclosedSection{
    "unclosed-section",
    "A section runs to the end of the file.",
    "add the closing line",
    "Without its closing line a section takes the rest of the file: later openings are plain lines of "
    "it, and their sections are never read.",
    {"[Outlet]\nIsOutlet = 1\n", 1, 1, "[Outlet] is never closed: it takes the rest of the file",
     "[Outlet]\nIsOutlet = 1\n[/Outlet]\n"}};

const CheckRule kWrongClosingTag{
    "wrong-closing-tag",
    "A closing line does not close the section it stands in.",
    "write the closing line that the reader looks for",
    "Only the section's own closing tag ends it. Two names deserve care: FIBER_PLOT_DYNAMIC is closed "
    "by [/PLOT_DYNAMIC].",
    {"[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/FIBER_PLOT_DYNAMIC]\n"
     "[/PLOT_DYNAMIC]\n",
     3, 1, "[/FIBER_PLOT_DYNAMIC] does not close [FIBER_PLOT_DYNAMIC] of line 1",
     "[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/PLOT_DYNAMIC]\n"}};

const CheckRule kCloseWithoutOpen{
    "close-without-open",
    "A closing line closes nothing.",
    "remove it or add the opening",
    "A closing line outside of its section does nothing. Most often the opening above it is missing or "
    "misspelt, so that the lines between are ignored.",
    {"[/Outlet]\n", 1, 1, "[/Outlet] closes a section that is not open", "[Outlet]\nIsOutlet = 1\n[/Outlet]\n"}};

const CheckRule kSectionInsideSection{
    "section-inside-section",
    "A section opens inside another one and is not read.",
    "close the outer section first",
    "Inside a section no other one opens: the lines up to its closing line are searched for keys of the "
    "outer section. Of two openings in one line the second is read behind the end of the first.",
    {"[ShortShot]\n[Outlet]\n[/Outlet]\n[/ShortShot]\n", 2, 1,
     "[Outlet] stands inside [ShortShot] of line 1 and is not read",
     "[ShortShot]\n[/ShortShot]\n[Outlet]\n[/Outlet]\n"}};

const CheckRule kCommentOpensSection{
    "comment-opens-section",
    "A comment holds an opening and so opens the section.",
    "write the section's name without brackets",
    "The reader knows no comments: an opening opens its section wherever it stands in a line.",
    {"# see [ShortShot]\n[/ShortShot]\n", 1, 7, "the comment opens [ShortShot]", "# see ShortShot\n"}};

const CheckRule kCommentClosesSection{
    "comment-closes-section",
    "A comment holds a closing and so closes the section.",
    "write the section's name without brackets",
    "The reader knows no comments: a closing ends its section wherever it stands in a line. The lines "
    "below it are outside, and ignored.",
    {"[ShortShot]\nTimeLimit = 2\n# see [/ShortShot]\n", 3, 7, "the comment closes [ShortShot]",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"}};

const CheckRule kSectionRepeated{
    "section-repeated",
    "A section stands in the file more than once.",
    "merge the two; later values win",
    "Both copies are read, one after the other: the later values win, and keys that only the first copy "
    "holds keep the values from there.",
    {"[Outlet]\n[/Outlet]\n[Outlet]\n[/Outlet]\n", 3, 1, "[Outlet] stood in line 1 already; later values win",
     "[Outlet]\n[/Outlet]\n"}};

const CheckRule kVersionUnknown{
    "version-unknown",
    "The version line is neither 1023 nor 1013.",
    "write [VER] 1023",
    "Version 1023 is followed by the head of 19 lines, 1013 by the standard solver's head. With any other "
    "number no head is read, and its lines are ignored.",
    {"[VER] 1024\n", 1, 1, "version 1024 is unknown; no head is read", "[VER] 1013\n"}};

const CheckRule kNothingRead{
    "nothing-read",
    "The file opens no section and announces no head, so nothing of it is used.",
    "is it the right file, and of the kind that it is read as (--as)?",
    "Every text is a valid file to the reader. Most often the name of another file was given, or a file "
    "of another kind.",
    {"The cover's parameters\n", 1, 1, "no line opens a section or announces a head: nothing of the file is used",
     "# The cover's parameters\n"}};

Checker::~Checker() {
  for (const auto& [table, block] : m_defaults) table->destroy(block);
}

void Checker::add(const CheckRule& rule, std::size_t at, std::string message, std::string hint) {
  m_isAnythingSaid = true;
  m_found.add(rule, m_line->number, m_line->text, orStart(at), std::move(message), std::move(hint));
}

// --- Files and lines ----------------------------------------------------------------------------------------------

void Checker::fileStarted(std::string_view fileName) {
  endSection();
  m_unknownSection.clear();
  m_positional = nullptr;
  if (m_files++ == 0) return;
  // The viscoelastic file's name is the reader's to derive, so its bytes are looked at here.
  m_names = &KnownNames::ofViscoelasticFile();
  m_found.startFile(std::string(fileName));
  checkRawFile(std::string(fileName), m_found);
}

void Checker::line(const ReadLine& line) {
  m_line = &line;
  m_hits.clear();
  for (const Hit& hit : line.hits) {
    if (hit.outcome == KeyOutcome::kStored && !isCompanion()) {
      m_origins[hit.row->field.locate(hit.block)] = here(hit.keyAt);
    }
    if (!hit.key.empty()) m_hits.push_back(&hit);
    noteGate(hit);
  }
  switch (line.part) {
    case ReadLine::Part::kOutside:
      judgeOutside();
      break;
    case ReadLine::Part::kPositional:
      judgePositional();
      break;
    case ReadLine::Part::kEntry:
      judgeTaken();
      [[fallthrough]];
    case ReadLine::Part::kKeyed:
      judgeKeyed();
      break;
    case ReadLine::Part::kNone:
      break;
  }
  judgeLists();
  if (line.end && line.part != ReadLine::Part::kPositional) judgeClosing();
  for (const Opening& opening : line.openings) judgeOpening(opening);
}

void Checker::judgeVersion() {
  const auto [parsed, version] = *m_line->version;
  m_isAnythingRead = true;
  if ((parsed && KnownNames::isHeadVersion(version)) || (isComment(text()) && !parsed)) return;
  add(kVersionUnknown, text().find("[VER]"),
      parsed ? "version " + std::to_string(version) + " is unknown; no head is read"
             : "the version line holds no version; no head is read");
}

void Checker::judgeOutside() {
  if (m_line->version) return judgeVersion();
  if (!m_line->openings.empty() || isComment(text()) || trimmed(text()).empty()) return;
  if (m_firstText.line == 0 && !isCompanion()) m_firstText = here(text().find(trimmed(text())));
  if (const Tag tag = tagOf(text(), m_names->bracket())) return judgeTagOutside(tag);
  const std::string_view name = nameOf(text());
  if (!m_unknownSection.empty() || (text().find('=') == text().npos && !m_names->isPresenceKey(name))) return;
  const std::string sections = m_names->sectionsWithKey(name);
  if (sections.empty()) return;
  add(kKeyOutsideSection, text().find(name), quoted(name) + " stands outside of every section and is ignored",
      "it belongs to " + sections);
}

void Checker::judgeTagOutside(const Tag& tag) {
  const std::size_t at = text().find(tag.text);
  const std::string shownTag(tag.text);
  if (tag.closes) {
    const bool expected = tag.name == m_unknownSection || (m_positional != nullptr && m_positional->name == tag.name);
    m_unknownSection.clear();
    m_positional = nullptr;
    if (!expected) add(kCloseWithoutOpen, at, shownTag + " closes a section that is not open");
    return;
  }
  m_unknownSection = tag.name;
  if (isCompanion() && tag.name == kUnreadTagBlock) return;
  if (const Section* others = KnownNames::ofOtherSolver(m_kind).sectionNamed(tag.name)) {
    m_isAnythingRead = true;
    m_unknownSection = tagOf(others->close, m_names->bracket()).name;  // not always the opening's
    return;
  }
  if (!m_found.wants(kUnknownSection)) return m_found.skip(kUnknownSection);
  const auto near = m_names->nearSections(tag.name);
  std::string hint;
  if (!near.empty()) {
    const Section& section = *m_names->sectionNamed(near.front());
    hint = "did you mean " + std::string(section.open) + "?";
    if (equalWithoutCase(section.name, tag.name)) hint += " Section names are case-sensitive";
  }
  add(kUnknownSection, at, shownTag + " is no section; its lines are ignored", hint);
}

// --- Sections -----------------------------------------------------------------------------------------------------

void Checker::judgeOpening(const Opening& opening) {
  const Section& section = *opening.section;
  endSection();
  m_section = &section;
  m_unknownSection.clear();
  m_positionalShort = false;
  m_tagInFreeLine = {};
  m_isAnythingRead = true;
  m_explained = false;
  m_opening = placeIn(opening.line, opening.text, orStart(opening.text.find(section.open)));
  const bool isFirst = opening.line == m_line->number;
  if (!isFirst) {
    // The line that opened the section before opened this one, too.
    m_found.add(kSectionInsideSection, m_opening,
                std::string(section.open) + " stands in the line of another opening; it is read from line " +
                    std::to_string(m_line->number + 1) + " on, behind that section's end",
                "give each opening a line of its own");
  }
  if (section.open.empty()) return;
  if (isComment(opening.text)) {
    m_found.add(kCommentOpensSection, m_opening, "the comment opens " + std::string(section.open));
  }
  int& first = m_sectionsSeen[&section];
  if (first > 0) {
    m_found.add(kSectionRepeated, m_opening,
                std::string(section.open) + " stood in line " + std::to_string(first) + " already; later values win");
  }
  if (first == 0) first = m_opening.line;
  if (isFirst) judgeBesideTag(section, section.open);
}

void Checker::judgeClosing() {
  const Section& section = *m_line->section;
  if (m_line->end == SectionEnd::kUnclosed) {
    if (!m_explained) {
      m_found.add(kUnclosedSection, m_opening,
                  std::string(section.open) + " is never closed: it takes the rest of the file",
                  "add a line " + std::string(section.close));
    }
    return endSection();
  }
  if (isComment(text()) && text().find(section.close) != text().npos) {
    add(kCommentClosesSection, text().find(section.close), "the comment closes " + std::string(section.open));
  }
  const bool endsList = m_line->part == ReadLine::Part::kEntry;
  if (!endsList && !section.closingLineIsRead) judgeBesideTag(section, section.close);
  endSection();
}

// Keys in the line of an opening or of a closing are not looked for.
void Checker::judgeBesideTag(const Section& section, std::string_view tag) {
  if (text().find('=') == text().npos) return;
  std::string rest(text());
  rest.replace(orStart(rest.find(tag)), tag.size(), tag.size(), ' ');
  const std::string_view name = nameOf(rest);
  if (!hasKey(section, name)) return;
  add(kKeyOutsideSection, rest.find(name),
      quoted(name) + " stands in the line of " + std::string(tag) + " and is ignored",
      "give it a line of its own between opening and closing");
}

void Checker::judgeTagInside(const Tag& tag) {
  const std::size_t at = text().find(tag.text);
  const std::string shownTag(tag.text), outer = std::string(m_section->open);
  if (!tag.closes) {
    const Section* nested = m_names->sectionNamed(tag.name);
    m_nestedClose = nested != nullptr ? std::string(nested->close) : shownTag.substr(0, 1) + "/" + shownTag.substr(1);
    m_nestedSeen = true;
    add(kSectionInsideSection, at,
        shownTag + " stands inside " + outer + " of line " + std::to_string(m_opening.line) + " and is not read",
        "close the section before with " + std::string(m_section->close));
    return;
  }
  if (tag.text == m_nestedClose) {
    m_nestedClose.clear();
    return;
  }
  // Among lost sections a stray closing is not why this one runs on.
  m_explained = m_explained || !m_nestedSeen;
  add(kWrongClosingTag, at, shownTag + " does not close " + outer + " of line " + std::to_string(m_opening.line),
      "write " + std::string(m_section->close));
}

void Checker::endSection() {
  endList();
  judgeMissingElements();
  for (auto& [key, pending] : m_pending) {
    m_found.add(kSeveralKeys, std::move(pending.place), std::move(pending.message));
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

void Checker::finish() {
  m_found.continueFile(m_mainFile);
  if (m_firstText.line > 0 && !m_isAnythingRead && !m_isAnythingSaid) {
    m_found.add(kNothingRead, m_firstText, "no line opens a section or announces a head: nothing of the file is used");
  }
  for (const auto& [member, change] : m_changes) {
    if (change.before == change.after) continue;
    m_found.add(kRepairedValue, m_origins[member],
                "the repairs change the value from " + number(change.before) + " to " + number(change.after) + " (" +
                    change.conditions + ")");
  }
}

}  // namespace zeb
