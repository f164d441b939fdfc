// The process library's classes, as the host's companion library declares them.
#pragma once

#include "platform/ZEBVisible.h"

class ZEB_VISIBLE ZEBG_DataEntryValueStorage {
 public:
  virtual ~ZEBG_DataEntryValueStorage();
};

/// The process conditions of one rank.
class ZEB_VISIBLE ZEBG_SimulatorProcess : public ZEBG_DataEntryValueStorage {
 public:
  ZEBG_SimulatorProcess();
};
