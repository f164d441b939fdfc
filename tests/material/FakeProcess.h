// Counts the process objects that live and tells when one is made.
#pragma once

#include <functional>

struct FakeProcess {
  static int created;
  static int destroyed;
  static std::function<void()> onCreate;  ///< Called by each constructor; empty for nothing.
  static void reset();
};
