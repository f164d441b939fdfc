#include "inspect/Provenance.hpp"

namespace zeb {

Origin Provenance::origin(const void* member) const {
  const auto found = m_origins.find(member);
  return found == m_origins.end() ? Origin() : found->second;
}

void Provenance::fileStarted(std::string_view fileName) {
  if (m_filesStarted++ == 0) return;
  const auto slash = fileName.rfind('/');
  m_laterFile = fileName.substr(slash == fileName.npos ? 0 : slash + 1);
}

void Provenance::lineRead(int lineNumber, std::string_view /*line*/) {
  if (m_filesStarted <= 1) m_linesRead = lineNumber;
}

void Provenance::keyFound(const KeyEvent& event) {
  if (event.outcome != KeyOutcome::kStored && event.outcome != KeyOutcome::kRefused) return;
  const Origin here{Origin::Kind::kFile, m_laterFile, event.lineNumber, {}};
  m_origins[event.row.field.locate(event.block)] = here;
  for (const Row& row : event.section.rows) {
    if (fills(event.row, row)) m_origins[row.field.locate(event.block)] = here;
  }
}

void Provenance::viscoelasticRefused(int lineNumber, std::string_view reason) {
  m_refusal = m_laterFile + (lineNumber > 0 ? " line " + std::to_string(lineNumber) : "") + ": " + std::string(reason);
}

void Provenance::repaired(const RepairEvent& event) {
  if (event.before == event.after) return;
  m_origins[event.memberAddress] = {Origin::Kind::kRepair, {}, 0, std::string(event.condition)};
}

}  // namespace zeb
