// The default process object: process conditions that hold nothing.
#include "platform/ZEBG.h"
#include "standalone/HostDefinition.hpp"

// Where the host has its own, they make and end the object on the same place.
ZEBG_DataEntryValueStorage::~ZEBG_DataEntryValueStorage() {
  if (auto* const end = zeb::hostDefinition<void(ZEBG_DataEntryValueStorage*)>(zeb::symbol::kEndProcess,
                                                                               __builtin_return_address(0))) {
    end(this);
  }
}

ZEBG_SimulatorProcess::ZEBG_SimulatorProcess() {
  if (auto* const make =
          zeb::hostDefinition<void(ZEBG_SimulatorProcess*)>(zeb::symbol::kMakeProcess, __builtin_return_address(0))) {
    make(this);
  }
}
