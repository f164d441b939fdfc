#include "inspect/CheckObserver.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "frame/ParameterTable.hpp"
#include "frame/ValueText.hpp"
#include "inspect/CheckNames.hpp"

namespace zeb {

namespace {

// The elements of such a list are keys of their own, not lines behind the count.
bool hasElementKeys(const Section& section) {
  return std::any_of(section.rows.begin(), section.rows.end(), [](const Row& row) { return row.store != nullptr; });
}

constexpr int kHeadVersion = 1023, kStandardVersion = 1013;
constexpr std::size_t kKeptText = 400;

std::string quoted(std::string_view text) {
  constexpr std::size_t kLongest = 60;
  return "'" + std::string(text.substr(0, kLongest)) + (text.size() > kLongest ? "..." : "") + "'";
}

std::string number(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.10g", value);
  return text;
}

}  // namespace

void CheckObserver::add(CheckRule rule, std::size_t at, std::string message, std::string hint) {
  m_found.add(rule, m_line, m_text, at == std::string::npos ? 0 : at, std::move(message), std::move(hint));
}

void CheckObserver::fileStarted(std::string_view fileName) {
  finishLine();
  if (m_files++ > 0) m_found.startFile(std::string(fileName));
  m_section = nullptr;
}

void CheckObserver::lineRead(int lineNumber, std::string_view line) {
  finishLine();
  m_text = line;
  m_line = lineNumber;
  m_judged = false;
}

void CheckObserver::versionRead(int /*lineNumber*/, std::string_view /*line*/, bool parsed, int version) {
  m_judged = true;
  if (version == kHeadVersion || version == kStandardVersion) return;
  add(CheckRule::kVersionUnknown, m_text.find("[VER]"),
      parsed ? "version " + std::to_string(version) + " is unknown; no head is read"
             : "the version line holds no version; no head is read");
}

void CheckObserver::sectionOpened(const Section& section, int /*lineNumber*/) {
  m_judged = true;
  endSection();
  m_section = &section;
  m_unknownSection.clear();
  m_positionalShort = false;
  m_explained = false;
  const auto at = section.open.empty() ? 0 : m_text.find(section.open);
  m_opening = {m_line, m_text.substr(0, kKeptText), at == m_text.npos ? 0 : at};
  if (section.open.empty()) return;
  if (isComment(m_text)) {
    add(CheckRule::kCommentOpensSection, at, "the comment opens " + std::string(section.open));
  }
  int& first = m_sectionsSeen[&section];
  if (first > 0) {
    add(CheckRule::kSectionRepeated, at,
        std::string(section.open) + " stood in line " + std::to_string(first) + " already; later values win");
  }
  if (first == 0) first = m_line;
}

void CheckObserver::sectionClosed(const Section& /*section*/, int /*lineNumber*/) {
  if (m_hits.empty()) m_judged = true;
  finishLine();
  endSection();
}

void CheckObserver::sectionUnclosed(const Section& section, int /*lineNumber*/) {
  finishLine();
  endList();
  if (!m_explained) {
    m_found.add(CheckRule::kUnclosedSection, m_opening.line, m_opening.text, m_opening.at,
                std::string(section.open) + " is never closed: it takes the rest of the file",
                "add a line " + std::string(section.close));
  }
  endSection();
}

void CheckObserver::sectionRefused(const Section& section, int /*lineNumber*/, int version) {
  m_judged = true;
  add(CheckRule::kPositionalVersion, 0,
      "version " + std::to_string(version) + " is not the one of " + std::string(section.open) +
          "; nothing of the section is read");
  m_positional = &section;
  m_section = nullptr;
}

void CheckObserver::keyFound(const KeyEvent& event) {
  const void* member = event.row.field.locate(event.block);
  const bool stored = event.outcome == KeyOutcome::kStored;
  const auto at = event.key.empty() ? event.line.find(trimmed(event.value)) : event.line.find(event.key);
  if (stored && m_files == 1) m_origins[member] = {m_line, std::string(event.line.substr(0, kKeptText)), at};
  if (event.key.empty()) return;
  m_hits.push_back(
      {&event.row, event.block, event.key, event.outcome, std::string(event.value), std::string(event.tail)});
  if (event.row.list != nullptr && stored) {
    endList();
    m_list = {};
    m_list.announced = m_line;
    m_list.text = event.line.substr(0, kKeptText);
    if (event.row.count && !hasElementKeys(event.section)) m_list.expected = *static_cast<const int*>(member);
    m_list.open = true;
  }
}

void CheckObserver::lineOfList(const Section& section, int /*lineNumber*/, std::string_view line, bool used) {
  m_judged = true;
  if (line.find(section.close) != line.npos) {
    add(CheckRule::kListConsumedClose, line.find(section.close),
        "the list of line " + std::to_string(m_list.announced) + " takes this closing line as an entry");
    m_explained = m_list.complained = true;
    return;
  }
  int count = 0;
  if (used && nameOf(line) == "NVentInlet") {
    extractInt(valueText(line), count);
    m_list.expected = count;
    return;
  }
  if (!used) {
    add(CheckRule::kListTooShort, 0,
        "the list of line " + std::to_string(m_list.announced) + " takes this line, but it is no usable entry");
    m_list.complained = true;
    return;
  }
  ++m_list.entries;
  double weight = 0.0;
  if (section.name != "MultiGate" || extractDouble(valueText(line), weight) == 0) return;
  m_list.sum += weight;
  ++m_list.parsed;
  m_list.lastLine = m_line;
  m_list.lastText = line.substr(0, kKeptText);
}

void CheckObserver::endList() {
  if (!m_list.open) return;
  m_list.open = false;
  if (m_list.complained) return;
  if (m_list.entries < m_list.expected) {
    m_found.add(
        CheckRule::kListTooShort, m_list.announced, m_list.text, 0,
        "the list has " + std::to_string(m_list.entries) + " of " + std::to_string(m_list.expected) + " entries");
  } else if (m_list.parsed > 0 && std::abs(m_list.sum - 1.0) > 1e-6) {
    m_found.add(CheckRule::kWeightsSum, m_list.lastLine, m_list.lastText, 0,
                "the weights sum to " + number(m_list.sum) + ", not to 1; the last one becomes one minus the others");
  }
}

void CheckObserver::linePositional(const Section& section, int /*lineNumber*/, int positionalLine, int converted,
                                   int expected, std::string_view tail) {
  const bool fileEnded = m_judged;
  m_judged = true;
  m_positional = &section;
  if (positionalLine == section.positional.lines) m_section = nullptr;
  if (m_positionalShort) return;
  const std::string what = section.open.empty() ? "the head" : std::string(section.open);
  if (fileEnded || trimmed(m_text).starts_with('[') || trimmed(m_text).starts_with("</")) {
    m_positionalShort = true;
    const std::string message = what + " has only " + std::to_string(positionalLine - 1) + " of its lines; ";
    if (fileEnded) {
      m_found.add(CheckRule::kPositionalTooShort, m_opening.line, m_opening.text, m_opening.at,
                  message + "the file ends");
    } else {
      add(CheckRule::kPositionalTooShort, 0, message + "this line is taken as its next one");
    }
    return;
  }
  const std::size_t at = m_text.size() - std::min(tail.size(), m_text.size());
  if (converted < expected) {
    add(CheckRule::kPositionalFields, at,
        "line " + std::to_string(positionalLine) + " of " + what + ": " + std::to_string(converted) + " of " +
            std::to_string(expected) + " fields can be read" +
            (trimmed(tail).empty() ? "" : "; reading stops at " + quoted(trimmed(tail))));
  } else if (expected > 0 && !trimmed(tail).empty()) {
    add(CheckRule::kPositionalExtra, at,
        quoted(trimmed(tail)) + " behind the " + std::to_string(expected) + " fields of line " +
            std::to_string(positionalLine) + " of " + what + " is ignored");
  }
}

void CheckObserver::lineOutside(int /*lineNumber*/, std::string_view line) {
  if (m_judged) return;  // a version line, reported once its head has been read
  m_judged = true;
  if (m_files > 1 || isComment(line)) return;
  const std::string_view tag = tagOf(line, '[');
  const std::size_t at = line.find('[');
  if (tag.starts_with('/')) {
    const std::string_view name = tag.substr(1);
    const bool expected = name == m_unknownSection || (m_positional != nullptr && m_positional->name == name);
    m_unknownSection.clear();
    m_positional = nullptr;
    if (!expected)
      add(CheckRule::kCloseWithoutOpen, at, "[" + std::string(tag) + "] closes a section that is not open");
  } else if (!tag.empty()) {
    m_unknownSection = tag;
    const auto near = nearSections(tag);
    add(CheckRule::kUnknownSection, at, "[" + std::string(tag) + "] is no section; its lines are ignored",
        near.empty() ? "" : "did you mean [" + std::string(near.front()) + "]? Section names are case-sensitive");
  } else if (m_unknownSection.empty() && line.find('=') != line.npos) {
    const std::string_view name = nameOf(line);
    const std::string sections = sectionsWithKey(name);
    if (sections.empty()) return;
    add(CheckRule::kKeyOutsideSection, line.find(name),
        quoted(name) + " stands outside of every section and is ignored", "it belongs to " + sections);
  }
}

void CheckObserver::viscoelasticRefused(int lineNumber, std::string_view reason) {
  finishLine();
  m_found.add(CheckRule::kViscoelasticRefused, lineNumber, lineNumber == m_line ? m_text : std::string(), 0,
              "rejected: " + std::string(reason));
}

void CheckObserver::repaired(const RepairEvent& event) {
  if (event.before == event.after || !m_origins.contains(event.memberAddress)) return;
  auto [change, isNew] = m_changes.try_emplace(event.memberAddress, Change{event.before, event.after, {}, {}});
  change->second.after = event.after;
  change->second.member = event.member;
  change->second.conditions += (isNew ? "" : ", ") + std::string(event.condition);
}

void CheckObserver::finish() {
  finishLine();
  for (const auto& [member, change] : m_changes) {
    if (change.before == change.after) continue;
    const Place& place = m_origins[member];
    m_found.add(CheckRule::kRepairedValue, place.line, place.text, place.at,
                "the repairs change the value from " + number(change.before) + " to " + number(change.after) + " (" +
                    change.conditions + ")");
  }
}

void CheckObserver::endSection() {
  endList();
  for (auto& [key, pending] : m_pending) {
    m_found.add(CheckRule::kSeveralKeys, pending.place.line, pending.place.text, pending.place.at,
                std::move(pending.message));
  }
  // Whether a gate opened further down is known only now.
  const bool opened = m_section != nullptr && m_section->gate >= 0 &&
                      m_setAt.contains(m_section->filter.keys[static_cast<std::size_t>(m_section->gate)]);
  for (auto& [place, key] : m_gated) {
    const std::string_view gate = m_section->filter.keys[static_cast<std::size_t>(m_section->gate)];
    const int gateLine = opened ? m_setAt[gate] : 0;
    const bool isAbove = opened && gateLine > place.line;
    m_found.add(isAbove ? CheckRule::kKeyAboveGate : CheckRule::kKeyGated, place.line, place.text, place.at,
                key + " is ignored: " +
                    (isAbove ? std::string(gate) + ", which opens it, stands in line " + std::to_string(gateLine)
                             : std::string(gate) + " keeps it shut"));
  }
  m_gated.clear();
  m_pending.clear();
  m_setAt.clear();
  m_nested.clear();
  m_section = nullptr;
}

}  // namespace zeb
