// The default process object: process conditions that hold nothing.
#include "platform/ZEBG.h"

ZEBG_DataEntryValueStorage::~ZEBG_DataEntryValueStorage() = default;

ZEBG_SimulatorProcess::ZEBG_SimulatorProcess() = default;
