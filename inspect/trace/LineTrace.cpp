#include "inspect/trace/LineTrace.hpp"

#include <algorithm>
#include <utility>

#include "inspect/set/Values.hpp"

namespace zeb {

namespace {

// A copy is asked, as a block keeps for good what it has handed out itself.
template <class T>
bool isOther(const SharedArray<T>& before, SharedArray<T> now) {
  return before.get() != now.get();
}

// Where a part of the line stands in it.
std::size_t offsetIn(std::string_view line, std::string_view part) {
  const bool isPart = part.data() >= line.data() && part.data() <= line.data() + line.size();
  return part.data() != nullptr && isPart ? static_cast<std::size_t>(part.data() - line.data()) : line.size();
}

std::size_t withoutBlanks(std::string_view text, std::size_t at, std::size_t end) {
  const auto first = text.substr(0, end).find_first_not_of(" \t\r\v\f", at);
  return first == text.npos ? at : first;
}

Hit hitOf(const KeyEvent& event) {
  Hit hit{.row = &event.row, .block = event.block, .key = event.key, .outcome = event.outcome, .parsed = event.parsed};
  hit.valueAt = offsetIn(event.line, event.value);
  hit.valueEnd = hit.valueAt + event.value.size();
  hit.usedEnd = hit.valueEnd - event.tail.size();
  const auto key = event.line.find(event.key);
  hit.keyAt = event.key.empty() || key == event.line.npos ? withoutBlanks(event.line, hit.valueAt, hit.valueEnd) : key;
  return hit;
}

}  // namespace

bool LineTrace::Before::isReplaced() const {
  if (row->field.type == FieldType::kInts) return isOther(ints, row->field.in<SharedArray<int>>(block));
  if (row->field.type == FieldType::kDoubles) return isOther(doubles, row->field.in<SharedArray<double>>(block));
  return value != valueOf(*row, block);
}

ReadLine& LineTrace::start(int number, std::string_view text, ReadLine::Part part) {
  handOn();
  m_line = {};
  m_line.number = number;
  m_line.text = text;
  m_line.part = part;
  m_line.section = m_section;
  m_line.block = m_block;
  m_hasLine = true;
  return m_line;
}

void LineTrace::handOn() {
  if (!std::exchange(m_hasLine, false)) return;
  if (m_line.part == ReadLine::Part::kPositional && m_section != nullptr && !m_line.end) {
    m_held.push_back(std::move(m_line));
  } else {
    m_reader.line(m_line);
  }
}

void LineTrace::release() {
  for (const ReadLine& line : std::exchange(m_held, {})) m_reader.line(line);
}

void LineTrace::finish() {
  m_section = nullptr;
  release();
  handOn();
}

void LineTrace::fileStarted(std::string_view fileName) {
  finish();
  m_reader.fileStarted(fileName);
}

void LineTrace::lineRead(int lineNumber, std::string_view line) {
  using Part = ReadLine::Part;
  const bool isPositional = m_section != nullptr && (m_section->isPositional() || m_section->open.empty());
  start(lineNumber, line, m_section == nullptr ? Part::kOutside : isPositional ? Part::kPositional : Part::kKeyed);
  ++m_linesInSection;
  if (isPositional) m_line.positionalLine = m_linesInSection;
}

void LineTrace::versionRead(bool parsed, int version) { m_line.version = {parsed, version}; }

void LineTrace::sectionOpened(const Section& section, void* block, int lineNumber, std::string_view openingLine) {
  if (!m_hasLine) start(0, {}, ReadLine::Part::kNone);
  m_line.openings.push_back({&section, lineNumber, std::string(openingLine)});
  m_section = &section;
  m_block = block;
  m_linesInSection = 0;
}

void LineTrace::sectionEnded(const Section& /*section*/, SectionEnd end) {
  if (end == SectionEnd::kUnclosed) {
    start(m_line.number, {}, ReadLine::Part::kNone);
  } else if (end == SectionEnd::kRefused && m_linesInSection == 0) {
    start(m_line.number, {}, ReadLine::Part::kPositional).isMissing = true;
  }
  m_line.end = end;
  m_section = nullptr;
  release();
}

// A key behind a list that has read on belongs to the line that holds it; a field may be told of later, too. A missing
// line bears the number of the last one, but not its text.
ReadLine& LineTrace::lineOf(const KeyEvent& event) {
  const auto isOf = [&](const ReadLine& line) { return line.number == event.lineNumber && line.text == event.line; };
  if (m_hasLine && isOf(m_line)) return m_line;
  const auto held = std::find_if(m_held.begin(), m_held.end(), isOf);
  if (held != m_held.end()) return *held;
  return start(event.lineNumber, event.line, ReadLine::Part::kKeyed);
}

void LineTrace::keyFound(const KeyEvent& event) {
  Hit hit = hitOf(event);
  hit.after = valueFor(event.row, event.block);
  lineOf(event).hits.push_back(hit);
  const bool isInList = m_listIsOpen && event.key.empty() && fills(*m_list.announcing.row, event.row);
  if (isInList) std::erase_if(m_before, [&](const Before& before) { return before.row == &event.row; });
  if (!event.row.opensList() || !hit.sets()) return;
  openList(hit, event);
  // A refused count leaves no list to be read.
  if (event.outcome == KeyOutcome::kRefused) closeList();
}

void LineTrace::openList(const Hit& hit, const KeyEvent& event) {
  m_listIsOpen = true;
  m_list = {hit, event.lineNumber, std::string(event.line), 0, {}, 0, 0, {}};
  m_before.clear();
  for (const Row& row : event.section.rows) {
    if (!fills(event.row, row)) continue;
    Before before{&row, event.block, {}, {}, {}};
    if (row.field.type == FieldType::kInts) {
      before.ints = row.field.in<SharedArray<int>>(event.block);
    } else if (row.field.type == FieldType::kDoubles) {
      before.doubles = row.field.in<SharedArray<double>>(event.block);
    } else {
      before.value = valueOf(row, event.block);
    }
    m_before.push_back(std::move(before));
  }
}

void LineTrace::lineOfList(const EntryEvent& event) {
  const bool used = event.used;
  m_line.part = ReadLine::Part::kEntry;
  m_line.entry = {m_list.line, used, event.isCount, event.number};
  m_line.entry.valueAt = withoutBlanks(m_line.text, m_line.text.size() - event.value.size(), m_line.text.size());
  m_line.entry.usedEnd = m_line.text.size() - event.tail.size();
  // A line that sets a member of its own is that member's.
  if (!m_line.hits.empty()) return;
  if (used) {
    m_list.lastUsed = m_line.number;
    if (m_list.firstUsed == 0) m_list.firstUsed = m_line.number;
  }
  if (m_list.entries.size() <= ListTaken::kMostEntries) {
    m_list.entries.push_back({m_line.number, m_line.text, used});
  } else if (used) {
    m_list.entries.back() = {m_line.number, m_line.text, used};
  }
}

void LineTrace::listEnded() { closeList(); }

void LineTrace::closeList() {
  if (!std::exchange(m_listIsOpen, false)) return;
  const bool refused = m_list.announcing.outcome == KeyOutcome::kRefused;
  const List& list = m_list.announcing.row->list;
  for (const Before& before : m_before) {
    // The new array may still be to be made.
    const bool isNew = list.isRoomOnly() && list.array.member == before.row->field.member;
    m_list.members.push_back(
        {before.row, before.block, refused || isNew || before.isReplaced(), valueFor(*before.row, before.block)});
  }
  m_before.clear();
  m_list.hitsBefore = m_line.hits.size();
  m_line.lists.push_back(std::exchange(m_list, {}));
}

void LineTrace::linePositional(int positionalLine, int converted, int expected, std::string_view tail) {
  if (positionalLine > m_linesInSection) {
    start(m_line.number, {}, ReadLine::Part::kPositional).isMissing = true;
  }
  m_line.positionalLine = positionalLine;
  m_line.converted = converted;
  m_line.expected = expected;
  m_line.restAt = m_line.text.size() - std::min(tail.size(), m_line.text.size());
}

void LineTrace::fileRefused(int lineNumber, std::string_view reason) {
  const int last = std::min(lineNumber, m_line.number);
  std::string text;
  const auto take = [&](const ReadLine& line) {
    if (line.number == last && !line.isMissing) text = line.text;
  };
  std::for_each(m_held.begin(), m_held.end(), take);
  take(m_line);
  finish();
  m_reader.fileRefused(last, text, reason);
}

void LineTrace::repaired(const RepairEvent& event) {
  finish();
  m_reader.repaired(event);
}

std::string LineTrace::valueFor(const Row& row, void* block) const {
  return m_reader.wantsValueOf(row) ? valueOf(row, block) : std::string();
}

ParameterFile readTraced(const std::string& fileName, FileKind kind, const AnalysisOptions& options, CZEBCom* com,
                         TraceReader& reader) {
  LineTrace trace(reader);
  ParameterFile file = readParameterFile(fileName, kind, options, com, &trace);
  trace.finish();
  return file;
}

}  // namespace zeb
