// The process object of each rank.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ZEBCom.h"
#include "platform/ZEBG.h"

/// Creates, hands out and destroys this rank's process object; the host fills it through the process library.
///
/// Copies of this object share the process objects; destroying all of them is safe.
class CZEBKNProcessParam {
 public:
  CZEBKNProcessParam();
  CZEBKNProcessParam(const CZEBKNProcessParam& other);
  ~CZEBKNProcessParam();
  CZEBKNProcessParam& operator=(const CZEBKNProcessParam& other);

  /// Creates the process object. Collective: every rank calls it, with its own `communicator` of the same run, which
  /// stays the caller's; null for a serial run. The ranks create their objects one after another. `fileName` is not
  /// used. A further call creates another object; the earlier ones live as long as this object and its copies.
  /// Always 1.
  int SetInput(std::string fileName, CZEBCom* communicator);

  /// The object created last, owned by this one; null before SetInput() and when the communicator has no ranks.
  ZEBG_SimulatorProcess* GetZebProcess() const;

 private:
  void replaceProcess(std::shared_ptr<ZEBG_SimulatorProcess> next);

  std::shared_ptr<ZEBG_SimulatorProcess> m_process;
  std::vector<std::shared_ptr<ZEBG_SimulatorProcess>> m_earlierProcesses;  // once handed out, so kept
  CZEBCom* m_pCom;
};
