#include "inspect/explain/History.hpp"

#include <algorithm>

#include "blocks/CZEBCMPVEParm.h"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/set/Values.hpp"
#include "inspect/trace/LineText.hpp"

namespace zeb {

namespace {

using Kind = HistoryStep::Kind;

constexpr std::string_view kWhyNotTaken = "the value is not taken";

std::string whyMissing(const ReadLine& line) {
  if (line.isMissing) return "the file ends before this line";
  const std::string_view rest = trimmed(std::string_view(line.text).substr(line.restAt));
  if (!rest.empty()) return "reading of the line stops at \"" + std::string(rest) + '"';
  if (line.converted == 0) return "the line holds no field";
  return "the line holds only " + std::to_string(line.converted) + (line.converted == 1 ? " field" : " fields");
}

const Section* sectionOf(const Row& row) {
  const auto entry = std::find_if(catalogue().begin(), catalogue().end(),
                                  [&](const CatalogueEntry& candidate) { return candidate.row == &row; });
  return entry == catalogue().end() ? nullptr : entry->section;
}

// What a step says about the members of a section that as a whole is not read; a version line does not know the head
// that it fails to announce.
bool concerns(const HistoryStep& refusal, const Section* section) {
  if (section == nullptr) return false;
  return refusal.section != nullptr ? refusal.section == section : section->headVersion != 0;
}

bool isOrdered(const HistoryStep* a, const HistoryStep* b) { return a->order < b->order; }

}  // namespace

void History::Chain::add(HistoryStep step) {
  if (last.empty() && first.size() < kMostSteps && firstText < kMostText) {
    firstText += step.after.size();
    return first.push_back(std::move(step));
  }
  lastText += step.after.size();
  last.push_back(std::move(step));
  while (last.size() > kMostSteps || (last.size() > 1 && lastText > kMostText)) {
    const std::size_t leftOut = last.front().leftOut + 1;
    lastText -= last.front().after.size();
    last.pop_front();
    last.front().leftOut = leftOut;
  }
}

std::vector<const HistoryStep*> History::stepsOf(const Row& row, void* block, Elements elements) const {
  const void* address = row.field.locate(block);
  std::vector<const HistoryStep*> steps;
  for (auto chain = m_chains.lower_bound({address, nullptr}); chain != m_chains.end() && chain->first.first == address;
       ++chain) {
    const bool isOther = chain->first.second != &row;
    if (isOther && elements == Elements::kOwn && row.isElement() && chain->first.second->isElement()) continue;
    // A list that sets the whole array is told once for each of its elements.
    const auto take = [&](const HistoryStep& step) {
      if (!(isOther && elements == Elements::kAll && step.kind == Kind::kList)) steps.push_back(&step);
    };
    std::for_each(chain->second.first.begin(), chain->second.first.end(), take);
    std::for_each(chain->second.last.begin(), chain->second.last.end(), take);
  }
  const Section* section = m_refusals.empty() ? nullptr : sectionOf(row);
  for (const HistoryStep& refusal : m_refusals) {
    if (concerns(refusal, section)) steps.push_back(&refusal);
  }
  std::sort(steps.begin(), steps.end(), isOrdered);
  return steps;
}

std::vector<int> History::openings(const Section& section) const {
  std::vector<int> lines;
  for (const auto& [opened, line] : m_openings) {
    if (opened == &section) lines.push_back(line);
  }
  return lines;
}

void History::fileStarted(std::string_view fileName) {
  if (m_filesStarted++ == 0) return;
  const auto slash = fileName.rfind('/');
  m_laterFile = fileName.substr(slash == fileName.npos ? 0 : slash + 1);
}

HistoryStep History::stepAt(Kind kind, const ReadLine& line, const Section* section) const {
  HistoryStep step;
  step.kind = kind;
  step.section = section;
  step.file = m_laterFile;
  step.lineNumber = line.number;
  step.line = line.text;
  return step;
}

HistoryStep History::stepOf(const Hit& hit, const ReadLine& line) const {
  HistoryStep step = stepAt(hit.outcome == KeyOutcome::kNotTaken ? Kind::kNotTaken : Kind::kLine, line, line.section);
  step.row = step.target = hit.row;
  step.address = hit.row->field.locate(hit.block);
  step.outcome = hit.outcome;
  step.key = hit.key;
  step.used = line.convertedText(hit);
  step.left = line.left(hit);
  if (hit.key.empty()) step.used = trimmed(step.used);
  if (hit.row->lookup == Lookup::kPresence) {
    step.used = hit.key;
    step.left.clear();
  }
  if (line.number == m_keysLine) step.others = othersOf(*hit.row);
  step.positionalLine = line.positionalLine;
  if (step.kind == Kind::kNotTaken) {
    step.reason = kWhyNotTaken;
  } else {
    step.after = hit.after;
    if (line.positionalLine > 0 && step.used.empty())
      step.reason = "the line lacks the field; that of the line above counts";
  }
  return step;
}

std::vector<HistoryStep::Other> History::othersOf(const Row& row) const {
  std::vector<HistoryStep::Other> others;
  std::copy_if(m_keys.begin(), m_keys.end(), std::back_inserter(others),
               [&](const HistoryStep::Other& other) { return other.row != &row; });
  return others;
}

void History::line(const ReadLine& line) {
  const auto isHead = [](const Opening& opening) { return opening.section->headVersion != 0; };
  if (line.version && std::none_of(line.openings.begin(), line.openings.end(), isHead)) {
    HistoryStep step = stepAt(Kind::kRefused, line, nullptr);
    step.reason = line.version->parsed ? "version " + std::to_string(line.version->number) : "no version number";
    step.order = ++m_steps;
    m_refusals.push_back(std::move(step));
  }
  if (line.end == SectionEnd::kRefused) {
    addRefusal(line);
  } else {
    addHits(line);
    if (line.part == ReadLine::Part::kPositional) addUnreadFields(line);
  }
  for (const Opening& opening : line.openings) m_openings.push_back({opening.section, opening.line});
}

void History::addHits(const ReadLine& line) {
  // Without a key: the fields of a positional line, which share it by design, and the members that a list's line sets.
  const bool isKeyed = std::any_of(line.hits.begin(), line.hits.end(), [](const Hit& hit) { return !hit.key.empty(); });
  if (isKeyed ? line.number != m_keysLine : line.part != ReadLine::Part::kEntry) m_keys.clear();
  if (isKeyed) m_keysLine = line.number;
  for (const Hit& hit : line.hits) {
    if (!hit.key.empty()) m_keys.push_back({hit.key, hit.row, hit.outcome, hit.after});
  }
  line.inOrder([&](const Hit& hit) { add(*hit.row, stepOf(hit, line)); },
               [&](const ListTaken& list) { addList(list, line); });
}

void History::addList(const ListTaken& list, const ReadLine& line) {
  for (const ListTaken::Member& member : list.members) {
    const bool hasLines = member.row->field.isArray() && !list.entries.empty();
    if (!hasLines && !member.isReplaced) continue;
    ReadLine announcing;
    announcing.number = list.line;
    announcing.text = list.text;
    announcing.section = line.section;
    HistoryStep step = stepOf(list.announcing, announcing);
    step.kind = Kind::kList;
    step.target = member.row;
    step.address = member.row->field.locate(member.block);
    for (const ListTaken::Entry& entry : list.entries) {
      if (!hasLines) break;
      step.listLines.push_back("line " + std::to_string(entry.line) + ": " + entry.text +
                               (entry.used ? "" : " (not used)"));
    }
    step.after = member.after;
    add(*member.row, std::move(step));
  }
}

// The members with a place in the line to which nothing of it came.
void History::addUnreadFields(const ReadLine& line) {
  for (const Row& row : line.section->rows) {
    for (const Position at : row.at) {
      const auto isHit = [&](const Hit& hit) { return hit.row == &row; };
      if (at.line != line.positionalLine || std::any_of(line.hits.begin(), line.hits.end(), isHit)) continue;
      const bool isMissing = at.field > line.converted;
      HistoryStep step = stepAt(isMissing ? Kind::kMissingField : Kind::kNotTaken, line, line.section);
      step.row = step.target = &row;
      step.address = row.field.locate(line.block);
      step.positionalLine = line.positionalLine;
      step.reason = isMissing ? whyMissing(line) : std::string(kWhyNotTaken);
      if (isMissing && line.section->positional.isAbsentZero(at.line)) step.after = exact(row.rule.apply(0.0));
      add(row, std::move(step));
    }
  }
}

// The version line of a positional section.
void History::addRefusal(const ReadLine& line) {
  HistoryStep step = stepAt(Kind::kRefused, line, line.section);
  const Row& row = *line.section->positional.slots.front().row;
  step.reason = line.isMissing
                    ? "the file ends before the version line"
                    : "version " + exact(line.hits.front().parsed.number) + " instead of " + valueOf(row, line.block);
  step.order = ++m_steps;
  m_refusals.push_back(std::move(step));
}

void History::fileRefused(int lineNumber, std::string_view text, std::string_view reason) {
  ReadLine line;
  line.number = lineNumber;
  line.text = text;
  for (const Section& section : tableOf<CZEBCMPVEParm>().sections) {
    HistoryStep step = stepAt(Kind::kRefused, line, &section);
    step.reason = std::string(reason) + "; what its lines have set is set back";
    step.order = ++m_steps;
    m_refusals.push_back(std::move(step));
  }
}

void History::repaired(const RepairEvent& event) {
  HistoryStep step;
  step.kind = Kind::kRepair;
  step.address = event.row->field.locate(event.block);
  step.condition = event.condition;
  step.before = exact(event.before);
  step.after = exact(event.after);
  add(*event.row, std::move(step));
}

bool History::isWanted(const Row& row) const {
  const auto isOf = [&](const Row* wanted) { return wanted->field.member == row.field.member; };
  return m_wanted.empty() || std::any_of(m_wanted.begin(), m_wanted.end(), isOf);
}

// The members that share a line with a wanted one are told, too; none of them is an array as a whole.
bool History::wantsValueOf(const Row& row) const { return !row.field.isArray() || row.isElement() || isWanted(row); }

// A file may hold millions of lines; a step is worth keeping for the members that are asked for.
void History::add(const Row& row, HistoryStep step) {
  if (!isWanted(row)) return;
  step.order = ++m_steps;
  m_chains[{step.address, &row}].add(std::move(step));
}

}  // namespace zeb
