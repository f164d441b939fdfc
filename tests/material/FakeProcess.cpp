// The process library's classes, defined in the test program itself: they take precedence over those of any library.
#include "tests/material/FakeProcess.h"

#include "platform/ZEBG.h"

int FakeProcess::created = 0;
int FakeProcess::destroyed = 0;
std::function<void()> FakeProcess::onCreate;

void FakeProcess::reset() {
  created = 0;
  destroyed = 0;
  onCreate = nullptr;
}

ZEBG_DataEntryValueStorage::~ZEBG_DataEntryValueStorage() { ++FakeProcess::destroyed; }

ZEBG_SimulatorProcess::ZEBG_SimulatorProcess() {
  ++FakeProcess::created;
  if (FakeProcess::onCreate) FakeProcess::onCreate();
}
