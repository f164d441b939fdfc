// Keys that a section's gate keeps shut.
#include <sstream>

#include "engine/SectionEngine.hpp"
#include "inspect/check/Checker.hpp"
#include "inspect/set/Values.hpp"

namespace zeb {

const CheckRule kKeyGated{
    "key-gated",
    "A key is ignored because another key keeps it shut.",
    "open the gate above it or remove the line",
    "Some sections have a gate: a key below whose limit the keys behind it are skipped. A skipped line "
    "whose value is in force anyway is not reported.",
    {"[AutoVPCtrl]\nAutoVPMode = 0\nEstCavityPres = 2\n[/AutoVPCtrl]\n", 3, 1,
     "EstCavityPres is ignored: AutoVPMode is 0 since line 2; EstCavityPres keeps 0.1",
     "[AutoVPCtrl]\nAutoVPMode = 1\nEstCavityPres = 2\n[/AutoVPCtrl]\n"}};

const CheckRule kKeyAboveGate{
    "key-above-gate",
    "A key is ignored because it stands above the line that opens its gate.",
    "move the line below the gate",
    "A gate opens for the lines below it; what stands above has been skipped already.",
    {"[AutoVPCtrl]\nEstCavityPres = 2\nAutoVPMode = 1\n[/AutoVPCtrl]\n", 2, 1,
     "EstCavityPres is ignored: AutoVPMode, which opens it, stands in line 3; EstCavityPres keeps 0.1",
     "[AutoVPCtrl]\nAutoVPMode = 1\nEstCavityPres = 2\n[/AutoVPCtrl]\n"}};

void Checker::noteGate(const Hit& hit) {
  if (hit.row->gateBelow == kNoGate || hit.outcome != KeyOutcome::kStored) return;
  m_gateSetAt = m_line->number;
  if (hit.row->field.in<int>(hit.block) >= hit.row->gateBelow) m_gateOpenedAt = m_line->number;
}

void Checker::judgeGated(const Hit& hit) {
  if (m_gated.size() >= DiagnosticList::kMostPerRule) return m_found.skip(kKeyGated);
  if (losesNothing(hit)) return;
  const std::string stays = hit.row->isElement() ? std::string("its point") : shown(hit);
  m_gated.push_back(
      {m_section, here(hit.keyAt), std::string(hit.key), stays, valueOf(m_section->gateRow(), hit.block), m_gateSetAt});
}

void Checker::reportGated(const Gated& gated) {
  const Row& gate = gated.section->gateRow();
  const std::string name(gate.key), kept = "; " + gated.key + " keeps " + gated.stays;
  if (m_gateOpenedAt > gated.place.line) {
    m_found.add(kKeyAboveGate, gated.place,
                gated.key + " is ignored: " + name + ", which opens it, stands in line " +
                    std::to_string(m_gateOpenedAt) + kept);
    return;
  }
  m_found.add(kKeyGated, gated.place,
              gated.key + " is ignored: " + name + " is " + gated.gateValue +
                  (gated.gateSetAt > 0 ? " since line " + std::to_string(gated.gateSetAt) : " by default") + kept,
              "set " + name + " to " + std::to_string(gate.gateBelow) + " or more above it, or remove the line");
}

// Whether the solver ends up with the line's value although it ignores the line: read with the gate open, the line
// stores what is there already.
bool Checker::losesNothing(const Hit& hit) const {
  // Points are made at the origin.
  if (hit.row->isElement()) return hit.parsed.failure == ParseFailure::kNone && hit.parsed.number == 0.0;
  const BlockTable* table = m_names->tableOf(*m_section);
  if (table == nullptr) return false;
  void* trial = table->create();
  const Row& gate = m_section->gateRow();
  gate.field.in<int>(trial) = gate.gateBelow;
  std::istringstream line(m_line->text + "\n" + std::string(m_section->close) + "\n");
  const LineSource source{};
  LineReader lines(line, source, nullptr);
  readSection(*m_section, trial, lines);
  const bool same = valueOf(*hit.row, trial) == valueOf(*hit.row, hit.block);
  table->destroy(trial);
  return same;
}

}  // namespace zeb
