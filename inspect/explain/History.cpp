#include "inspect/explain/History.hpp"

#include <algorithm>

#include "frame/CZEBCMPInternalTool.hpp"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/set/Settings.hpp"

namespace zeb {

namespace {

using Kind = HistoryStep::Kind;

constexpr std::string_view kWhyNotTaken = "the value is not taken";

const Section* sectionOf(const Row& row) {
  for (const CatalogueEntry& entry : catalogue()) {
    if (entry.row == &row) return entry.section;
  }
  return nullptr;
}

std::string defaultOf(const Row& row) {
  for (const CatalogueEntry& entry : catalogue()) {
    if (entry.row == &row) return entry.defaultValue;
  }
  return {};
}

std::string_view withoutBlanks(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\v\f";
  const auto first = text.find_first_not_of(kBlank);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

std::string whyMissing(bool fileEnded, int converted, std::string_view tail) {
  if (fileEnded) return "the file ends before this line";
  if (!withoutBlanks(tail).empty()) return "reading of the line stops at \"" + std::string(withoutBlanks(tail)) + '"';
  if (converted == 0) return "the line holds no field";
  return "the line holds only " + std::to_string(converted) + (converted == 1 ? " field" : " fields");
}

// What a step says about a member that a section as a whole keeps from being read.
bool concerns(const HistoryStep& step, const Section* section) {
  if (step.kind != Kind::kRefused || section == nullptr) return false;
  return step.section != nullptr ? step.section == section : section->headVersion != 0;
}

}  // namespace

std::vector<const HistoryStep*> History::stepsOf(const Row& row, void* block, Elements elements) const {
  const void* address = row.field.locate(block);
  const Section* section = sectionOf(row);
  std::vector<const HistoryStep*> steps;
  for (const HistoryStep& step : m_steps) {
    const bool same = step.address != nullptr ? step.address == address : step.target == &row;
    const bool otherElement = elements == Elements::kOwn && row.store != nullptr && step.target != nullptr &&
                              step.target->store != nullptr && step.target != &row;
    // A list that sets the whole array is told once for each of its elements.
    const bool isCopy =
        elements == Elements::kAll && step.kind == Kind::kList && step.target != nullptr && step.target != &row;
    if ((same && !otherElement && !isCopy) || concerns(step, section)) steps.push_back(&step);
  }
  return steps;
}

std::vector<const HistoryStep*> History::othersOf(const HistoryStep& step) const {
  std::vector<const HistoryStep*> others;
  if (step.row == nullptr) return others;
  for (const HistoryStep& other : m_steps) {
    const bool sameLine = other.lineNumber == step.lineNumber && other.file == step.file;
    const bool sameSection = other.section == step.section;
    if (&other == &step || !sameLine || !sameSection || other.row == step.row) continue;
    // The fields of a positional line share their line by design.
    if (other.kind == Kind::kLine && !other.key.empty()) others.push_back(&other);
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

HistoryStep History::stepAt(Kind kind, const Section* section, int lineNumber) const {
  HistoryStep step;
  step.kind = kind;
  step.section = section;
  step.file = m_laterFile;
  step.lineNumber = lineNumber;
  step.line = m_line;
  return step;
}

void History::fileStarted(std::string_view fileName) {
  settleList();
  m_line.clear();
  m_lineBefore.clear();
  m_lineNumber = 0;
  if (m_filesStarted++ == 0) return;
  const auto slash = fileName.rfind('/');
  m_laterFile = fileName.substr(slash == fileName.npos ? 0 : slash + 1);
}

// A file may hold millions of lines; a step is worth keeping for its own member and for those in the same line.
void History::forgetUnwanted() {
  if (m_wanted.empty()) return;
  const auto isWanted = [&](const HistoryStep& step) {
    return step.target == nullptr || std::any_of(m_wanted.begin(), m_wanted.end(), [&](const Row* row) {
             return row->field.member == step.target->field.member;
           });
  };
  const auto undecided = m_steps.begin() + static_cast<std::ptrdiff_t>(m_decided);
  if (std::none_of(undecided, m_steps.end(), isWanted)) m_steps.erase(undecided, m_steps.end());
  m_decided = m_steps.size();
}

void History::lineRead(int lineNumber, std::string_view line) {
  forgetUnwanted();
  if (m_listIsNew) {
    for (const ListTrace::Member& member : m_list.members()) {
      m_listValues[member.row] = valueOf(*member.row, member.block);
    }
    m_listIsNew = false;
  }
  m_lineBefore.swap(m_line);
  m_line = line;
  m_lineNumber = lineNumber;
  m_lineIsNew = true;
  if (m_isOpening) m_versionStep = stepAt(Kind::kLine, m_openings.back().section, lineNumber);
  m_isOpening = false;
}

// Taken back as soon as the head that the line announces is read.
void History::versionRead(int lineNumber, std::string_view /*line*/, bool parsed, int version) {
  HistoryStep step = stepAt(Kind::kRefused, nullptr, lineNumber);
  step.reason = parsed ? "version " + std::to_string(version) : "no version number";
  m_steps.push_back(std::move(step));
}

void History::sectionOpened(const Section& section, int lineNumber) {
  settleList();
  const bool isHead = section.headVersion != 0;
  if (isHead && !m_steps.empty() && concerns(m_steps.back(), &section)) m_steps.pop_back();
  m_openings.push_back({&section, lineNumber});
  m_lineIsNew = false;
  m_isOpening = true;
}

void History::sectionClosed(const Section& /*section*/, int /*lineNumber*/) { settleList(); }
void History::sectionUnclosed(const Section& /*section*/, int /*lineNumber*/) { settleList(); }

void History::sectionRefused(const Section& section, int lineNumber, int version) {
  HistoryStep step = stepAt(Kind::kRefused, &section, lineNumber);
  const std::string wanted = defaultOf(*section.positional.slots.front().row);
  step.reason = m_lineIsNew ? "version " + std::to_string(version) + " instead of " + wanted
                            : "the file ends before the version line";
  m_steps.push_back(std::move(step));
}

HistoryStep History::stepOf(const KeyEvent& event) const {
  HistoryStep step = stepAt(Kind::kLine, &event.section, event.lineNumber);
  step.row = step.target = &event.row;
  step.address = event.row.field.locate(event.block);
  step.outcome = event.outcome;
  step.line = event.line;
  step.key = event.key;
  step.used = event.value.substr(0, event.value.size() - event.tail.size());
  if (event.key.empty()) step.used = withoutBlanks(step.used);
  step.left = event.tail;
  if (event.row.lookup == Lookup::kPresence) {
    step.used = event.key;
    step.left.clear();
  }
  const bool isField = event.key.empty() && event.row.at[0].line > 0;
  if (isField && !m_openings.empty()) step.positionalLine = event.lineNumber - m_openings.back().lineNumber;
  if (isField && step.used.empty()) step.reason = "the line lacks the field; that of the line above counts";
  step.after = valueOf(event.row, event.block);
  return step;
}

void History::keyFound(const KeyEvent& event) {
  const bool isInList = m_list.takes(event);
  if (!isInList) settleList();
  if (m_hasNotTaken) takeBack(event);
  m_steps.push_back(stepOf(event));
  if (event.row.list == nullptr) return;
  m_listStep = m_steps.back();
  m_listStep.kind = Kind::kList;
  if (event.outcome == KeyOutcome::kStored) {
    m_list.start(event);
    m_listIsNew = true;
  }
  if (event.outcome != KeyOutcome::kRefused) return;
  for (const Row& row : event.section.rows) {
    if (fills(event.row, row)) addListStep(row, event.block, {}, valueOf(row, event.block));
  }
}

void History::fieldNotTaken(const KeyEvent& event) {
  HistoryStep step = stepOf(event);
  step.kind = Kind::kNotTaken;
  step.reason = kWhyNotTaken;
  step.after.clear();
  m_steps.push_back(std::move(step));
}

// The last line of the viscoelastic head is read before what the one above it sets is told.
void History::takeBack(const KeyEvent& event) {
  m_hasNotTaken = event.key.empty();
  m_decided = 0;
  std::erase_if(m_steps, [&](const HistoryStep& step) {
    return step.kind == Kind::kNotTaken && step.row == &event.row && step.lineNumber == event.lineNumber;
  });
}

void History::lineOfList(const Section& /*section*/, int lineNumber, std::string_view line, bool used) {
  m_list.line(lineNumber, line, used);
}

void History::settleList() {
  for (const ListTrace::Member& member : m_list.finish()) {
    if (member.lines.empty() && !member.isChanged()) continue;
    const auto known = m_listValues.find(member.row);
    const bool isOver = member.lines.empty() && known != m_listValues.end();
    addListStep(*member.row, member.block, member.lines, isOver ? known->second : valueOf(*member.row, member.block));
  }
  m_listValues.clear();
  m_listIsNew = false;
}

void History::addListStep(const Row& row, void* block, const std::vector<ListTrace::Line>& lines, std::string after) {
  HistoryStep step = m_listStep;
  step.target = &row;
  step.address = row.field.locate(block);
  for (const ListTrace::Line& line : lines) {
    step.listLines.push_back("line " + std::to_string(line.number) + ": " + line.text +
                             (line.used ? "" : " (not used)"));
  }
  step.after = std::move(after);
  m_steps.push_back(std::move(step));
}

bool History::isSetBy(int lineNumber, const Row& row) const {
  for (auto step = m_steps.rbegin(); step != m_steps.rend(); ++step) {
    if (step->lineNumber != lineNumber || step->file != m_laterFile) break;
    if (step->row == &row) return true;
  }
  return false;
}

// A version line that matches is told of by the line that follows it.
void History::addVersionStep(const Section& section) {
  HistoryStep step = m_versionStep;
  step.row = step.target = section.positional.slots.front().row;
  step.positionalLine = 1;
  step.used = withoutBlanks(step.line);
  step.after = defaultOf(*step.row);
  m_steps.push_back(std::move(step));
}

void History::linePositional(const Section& section, int lineNumber, int positionalLine, int converted,
                             int /*expected*/, std::string_view tail) {
  const bool fileEnded = !m_lineIsNew;
  m_lineIsNew = false;
  const bool absentIsZero = (section.positional.absentIsZero >> positionalLine & 1u) != 0;
  for (const Row& row : section.rows) {
    for (const Position at : row.at) {
      if (at.line != positionalLine) continue;
      if (isSetBy(lineNumber, row)) continue;
      const bool isMissing = at.field > converted;
      HistoryStep step = stepAt(isMissing ? Kind::kMissingField : Kind::kNotTaken, &section, lineNumber);
      step.row = step.target = &row;
      step.positionalLine = positionalLine;
      if (fileEnded) step.line.clear();
      step.reason = isMissing ? whyMissing(fileEnded, converted, tail) : std::string(kWhyNotTaken);
      if (isMissing && absentIsZero) step.after = exact(row.rule.apply(0.0));
      if (!isMissing) m_hasNotTaken = true;
      m_steps.push_back(std::move(step));
    }
  }
  if (section.positional.versioned && positionalLine == 2) addVersionStep(section);
}

void History::viscoelasticRefused(int lineNumber, std::string_view reason) {
  settleList();
  for (const Section& section : tableOf<CZEBCMPVEParm>().sections) {
    HistoryStep step = stepAt(Kind::kRefused, &section, lineNumber);
    // What line 8 says is judged when line 9 has been read.
    if (lineNumber == m_lineNumber - 1) step.line = m_lineBefore;
    if (lineNumber == 0 || lineNumber > m_lineNumber) step.line.clear();
    step.reason = std::string(reason) + "; what its lines have set is set back";
    m_steps.push_back(std::move(step));
  }
}

void History::repaired(const RepairEvent& event) {
  settleList();
  HistoryStep step;
  step.kind = Kind::kRepair;
  step.address = event.memberAddress;
  step.condition = event.condition;
  step.before = exact(event.before);
  step.after = exact(event.after);
  m_steps.push_back(step);
}

}  // namespace zeb
