// Creation of the process objects, one rank at a time.
#include "material/CZEBKNProcessParam.h"

#include <utility>

CZEBKNProcessParam::CZEBKNProcessParam() : m_pCom(nullptr) {}

CZEBKNProcessParam::CZEBKNProcessParam(const CZEBKNProcessParam& other) = default;

CZEBKNProcessParam::~CZEBKNProcessParam() = default;

CZEBKNProcessParam& CZEBKNProcessParam::operator=(const CZEBKNProcessParam& other) {
  if (this == &other) return *this;
  replaceProcess(other.m_process);
  m_pCom = other.m_pCom;
  return *this;
}

int CZEBKNProcessParam::SetInput([[maybe_unused]] std::string fileName, CZEBCom* communicator) {
  if (communicator == nullptr) {
    replaceProcess(std::make_shared<ZEBG_SimulatorProcess>());
    return 1;
  }
  m_pCom = communicator;
  // No two ranks may run the process library's constructor at the same time.
  for (int turn = 0; turn < m_pCom->GetNCPU(); ++turn) {
    if (m_pCom->GetCPUId() == turn) replaceProcess(std::make_shared<ZEBG_SimulatorProcess>());
    m_pCom->Barrier();
  }
  return 1;
}

ZEBG_SimulatorProcess* CZEBKNProcessParam::GetZebProcess() const { return m_process.get(); }

void CZEBKNProcessParam::replaceProcess(std::shared_ptr<ZEBG_SimulatorProcess> next) {
  if (m_process != nullptr && m_process != next) m_earlierProcesses.push_back(m_process);
  m_process = std::move(next);
}
