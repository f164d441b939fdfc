// The default process object.
#include <gtest/gtest.h>

#include <memory>

#include "platform/ZEBG.h"

namespace zeb::test {
namespace {

TEST(ProcessLibrary, CreatesAnObjectThatIsDestroyedThroughItsBase) {
  static bool destroyed;
  struct Watched : ZEBG_SimulatorProcess {
    ~Watched() override { destroyed = true; }
  };
  destroyed = false;
  std::unique_ptr<ZEBG_DataEntryValueStorage> process = std::make_unique<Watched>();
  EXPECT_NE(dynamic_cast<ZEBG_SimulatorProcess*>(process.get()), nullptr);
  process.reset();
  EXPECT_TRUE(destroyed);
}

}  // namespace
}  // namespace zeb::test
