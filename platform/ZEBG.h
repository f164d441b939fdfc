// The process library's classes, as the host's companion library declares them.
#pragma once

class ZEBG_DataEntryValueStorage {
 public:
  virtual ~ZEBG_DataEntryValueStorage();
};

/// The process conditions of one rank.
class ZEBG_SimulatorProcess : public ZEBG_DataEntryValueStorage {
 public:
  ZEBG_SimulatorProcess();
};
