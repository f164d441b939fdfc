#include "inspect/History.hpp"

#include <charconv>

#include "inspect/Settings.hpp"

namespace zeb {

namespace {

std::string exact(double value) {
  char text[40];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

}  // namespace

std::vector<const HistoryStep*> History::stepsOf(const Row& row, void* block) const {
  const void* address = row.field.locate(block);
  std::vector<const HistoryStep*> steps;
  for (const HistoryStep& step : m_steps) {
    const bool same = step.address != nullptr ? step.address == address : step.target == &row;
    const bool otherElement =
        row.store != nullptr && step.target != nullptr && step.target->store != nullptr && step.target != &row;
    if (same && !otherElement) steps.push_back(&step);
  }
  return steps;
}

std::vector<const HistoryStep*> History::othersOf(const HistoryStep& step) const {
  std::vector<const HistoryStep*> others;
  if (step.kind == HistoryStep::Kind::kRepair) return others;
  for (const HistoryStep& other : m_steps) {
    const bool sameLine = other.lineNumber == step.lineNumber && other.file == step.file;
    const bool sameSection = other.section == step.section;
    if (&other == &step || !sameLine || !sameSection || other.row == step.row) continue;
    // The fields of a positional line share their line by design.
    if (other.kind == HistoryStep::Kind::kLine && !other.key.empty()) others.push_back(&other);
  }
  return others;
}

std::vector<int> History::openings(const Section& section) const {
  std::vector<int> lines;
  for (const Opening& opening : m_openings) {
    if (opening.section == &section) lines.push_back(opening.lineNumber);
  }
  return lines;
}

void History::fileStarted(std::string_view fileName) {
  settleLists();
  if (m_filesStarted++ == 0) return;
  const auto slash = fileName.rfind('/');
  m_laterFile = fileName.substr(slash == fileName.npos ? 0 : slash + 1);
}

void History::lineRead(int /*lineNumber*/, std::string_view line) { m_line = line; }

void History::sectionOpened(const Section& section, int lineNumber) {
  settleLists();
  m_openings.push_back({&section, lineNumber});
}

void History::sectionClosed(const Section& /*section*/, int /*lineNumber*/) { settleLists(); }
void History::sectionUnclosed(const Section& /*section*/, int /*lineNumber*/) { settleLists(); }

HistoryStep History::stepOf(const KeyEvent& event) const {
  HistoryStep step;
  step.section = &event.section;
  step.row = step.target = &event.row;
  step.address = event.row.field.locate(event.block);
  step.outcome = event.outcome;
  step.file = m_laterFile;
  step.lineNumber = event.lineNumber;
  step.line = event.line;
  step.key = event.key;
  step.used = event.value.substr(0, event.value.size() - event.tail.size());
  step.left = event.tail;
  return step;
}

void History::keyFound(const KeyEvent& event) {
  settleLists();
  HistoryStep step = stepOf(event);
  step.after = valueOf(event.row, event.block);
  m_steps.push_back(step);
  if (event.row.list == nullptr || !step.sets()) return;
  m_listBlock = event.block;
  m_firstOpenList = m_steps.size();
  for (const Row& row : event.section.rows) {
    if (!fills(event.row, row)) continue;
    step.kind = HistoryStep::Kind::kList;
    step.target = &row;
    step.address = row.field.locate(event.block);
    m_steps.push_back(step);
  }
}

void History::lineOfList(const Section& /*section*/, int lineNumber, std::string_view line, bool used) {
  if (m_listBlock == nullptr) return;
  for (std::size_t i = m_firstOpenList; i < m_steps.size(); ++i) {
    m_steps[i].listLines.push_back("line " + std::to_string(lineNumber) + ": " + std::string(line) +
                                   (used ? "" : " (not used)"));
  }
}

void History::settleLists() {
  if (m_listBlock == nullptr) return;
  for (std::size_t i = m_firstOpenList; i < m_steps.size(); ++i) {
    m_steps[i].after = valueOf(*m_steps[i].target, m_listBlock);
  }
  m_listBlock = nullptr;
}

void History::linePositional(const Section& section, int lineNumber, int positionalLine, int converted, int expected,
                             std::string_view /*tail*/) {
  const bool absentIsZero = (section.positional.absentIsZero >> positionalLine & 1u) != 0;
  if (!absentIsZero || converted == expected) return;
  for (const Slot& slot : section.positional.slots) {
    if (slot.at.line != positionalLine || slot.at.field <= converted || slot.row == nullptr) continue;
    HistoryStep step;
    step.kind = HistoryStep::Kind::kMissingField;
    step.section = &section;
    step.row = step.target = slot.row;
    step.file = m_laterFile;
    step.lineNumber = lineNumber;
    step.line = m_line;
    step.after = exact(slot.row->rule.apply(0.0));
    m_steps.push_back(step);
  }
}

void History::repaired(const RepairEvent& event) {
  settleLists();
  HistoryStep step;
  step.kind = HistoryStep::Kind::kRepair;
  step.address = event.memberAddress;
  step.condition = event.condition;
  step.before = exact(event.before);
  step.after = exact(event.after);
  m_steps.push_back(step);
}

}  // namespace zeb
