#include "inspect/explain/Provenance.hpp"

#include "engine/ParameterTable.hpp"

namespace zeb {

Origin Provenance::origin(const void* member) const {
  const auto found = m_origins.find(member);
  return found == m_origins.end() ? Origin() : found->second;
}

void Provenance::fileStarted(std::string_view fileName) {
  settleList();
  if (m_filesStarted++ == 0) return;
  const auto slash = fileName.rfind('/');
  m_laterFile = fileName.substr(slash == fileName.npos ? 0 : slash + 1);
}

void Provenance::lineRead(int lineNumber, std::string_view /*line*/) {
  if (m_filesStarted <= 1) m_linesRead = lineNumber;
}

void Provenance::sectionOpened(const Section& /*section*/, int /*lineNumber*/) {
  settleList();
  m_positionalBlock = nullptr;
  if (m_filesStarted <= 1) m_hasSections = true;
}

void Provenance::sectionClosed(const Section& /*section*/, int /*lineNumber*/) { settleList(); }
void Provenance::sectionUnclosed(const Section& /*section*/, int /*lineNumber*/) { settleList(); }

void Provenance::keyFound(const KeyEvent& event) {
  const bool isInList = m_list.takes(event);
  if (!isInList) settleList();
  const bool refused = event.outcome == KeyOutcome::kRefused;
  if (event.outcome != KeyOutcome::kStored && !refused) return;
  const void* member = event.row.field.locate(event.block);
  if (event.section.isPositional()) m_positionalBlock = event.block;
  if (event.row.store != nullptr) {
    const int first = m_firstElements.try_emplace(member, event.lineNumber).first->second;
    m_origins[member] = here(first, event.lineNumber);
    return;
  }
  m_origins[member] = here(event.lineNumber);
  if (event.row.list == nullptr) return;
  if (refused) {
    for (const Row& row : event.section.rows) {
      if (fills(event.row, row)) m_origins[row.field.locate(event.block)] = here(event.lineNumber);
    }
    return;
  }
  m_list.start(event);
  m_listLine = event.lineNumber;
}

void Provenance::lineOfList(const Section& /*section*/, int lineNumber, std::string_view /*line*/, bool used) {
  m_list.line(lineNumber, {}, used);
}

void Provenance::settleList() {
  for (const ListTrace::Member& member : m_list.finish()) {
    if (const ListTrace::Line* first = member.firstUsed()) {
      m_origins[member.address()] = here(first->number, member.lastUsed()->number);
    } else if (member.isChanged()) {
      m_origins[member.address()] = here(m_listLine);
      m_firstElements.erase(member.address());
    }
  }
}

// Fields that the line lacks may count as 0.
void Provenance::linePositional(const Section& section, int lineNumber, int positionalLine, int converted,
                                int /*expected*/, std::string_view /*tail*/) {
  const bool absentIsZero = (section.positional.absentIsZero >> positionalLine & 1u) != 0;
  if (!absentIsZero || m_positionalBlock == nullptr) return;
  for (const Row& row : section.rows) {
    for (const Position at : row.at) {
      if (at.line != positionalLine || at.field <= converted) continue;
      m_origins[row.field.locate(m_positionalBlock)] = here(lineNumber);
    }
  }
}

void Provenance::viscoelasticRefused(int lineNumber, std::string_view reason) {
  settleList();
  m_refusal = m_laterFile + (lineNumber > 0 ? " line " + std::to_string(lineNumber) : "") + ": " + std::string(reason);
  // What its lines set is set back.
  std::erase_if(m_origins, [&](const auto& known) { return known.second.file == m_laterFile; });
}

void Provenance::repaired(const RepairEvent& event) {
  if (event.before == event.after) return;
  m_origins[event.memberAddress] = {Origin::Kind::kRepair, {}, 0, 0, std::string(event.condition)};
}

}  // namespace zeb
