#include "inspect/explain/Origins.hpp"

#include <algorithm>

namespace zeb {

std::string Origin::text() const {
  switch (kind) {
    case Kind::kFile: {
      const std::string lines = lastLine > line ? "lines " + std::to_string(line) + "-" + std::to_string(lastLine)
                                                : "line " + std::to_string(line);
      return (file.empty() ? "" : file + " ") + lines;
    }
    case Kind::kRepair:
      return "repair: " + note;
    case Kind::kDerived:
      return "derived";
    case Kind::kDefault:
      break;
  }
  return "default";
}

Origin Origins::of(const void* member) const {
  const auto found = m_origins.find(member);
  return found == m_origins.end() ? Origin() : found->second;
}

void Origins::fileStarted(std::string_view fileName) {
  if (m_filesStarted++ == 0) return;
  const auto slash = fileName.rfind('/');
  m_laterFile = fileName.substr(slash == fileName.npos ? 0 : slash + 1);
}

void Origins::line(const ReadLine& line) {
  if (m_filesStarted <= 1) {
    m_linesRead = std::max(m_linesRead, line.number);
    m_hasSections = m_hasSections || !line.openings.empty();
  }
  line.inOrder([&](const Hit& hit) { take(hit, line.number); }, [&](const ListTaken& list) { take(list); });
  takeAbsent(line);
}

void Origins::take(const Hit& hit, int line) {
  if (!hit.sets()) return;
  const void* member = hit.row->field.locate(hit.block);
  const int first = hit.row->isElement() ? m_firstElements.try_emplace(member, line).first->second : line;
  m_origins[member] = lines(first, line);
}

void Origins::take(const ListTaken& list) {
  for (const ListTaken::Member& member : list.members) {
    const void* address = member.row->field.locate(member.block);
    if (list.firstUsed > 0 && member.row->field.isArray()) {
      m_origins[address] = lines(list.firstUsed, list.lastUsed);
    } else if (member.isReplaced) {
      m_origins[address] = lines(list.line, list.line);
      m_firstElements.erase(address);
    }
  }
}

// Fields that the line lacks may count as 0.
void Origins::takeAbsent(const ReadLine& line) {
  if (line.positionalLine == 0 || !line.section->positional.isAbsentZero(line.positionalLine)) return;
  for (const Row& row : line.section->rows) {
    for (const Position at : row.at) {
      if (at.line != line.positionalLine || at.field <= line.converted) continue;
      m_origins[row.field.locate(line.block)] = lines(line.number, line.number);
    }
  }
}

void Origins::fileRefused(int lineNumber, std::string_view /*text*/, std::string_view reason) {
  m_refusal = m_laterFile + (lineNumber > 0 ? " line " + std::to_string(lineNumber) : "") + ": " + std::string(reason);
  // What its lines set is set back.
  std::erase_if(m_origins, [&](const auto& known) { return known.second.file == m_laterFile; });
}

void Origins::repaired(const RepairEvent& event) {
  if (event.before == event.after) return;
  m_origins[event.row->field.locate(event.block)] = {Origin::Kind::kRepair, {}, 0, 0, std::string(event.condition)};
}

}  // namespace zeb
