// What a test makes the program print.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace zebtest {

/// What `action` writes to standard output, through streams and C output alike.
template <class Action>
std::string printedBy(Action action) {
  testing::internal::CaptureStdout();
  action();
  return testing::internal::GetCapturedStdout();
}

}  // namespace zebtest
