// The stand-ins where an allocation fails: a host gets an exception or an error, and nothing ends or waits for ever.
#include <gtest/gtest.h>

#include <fstream>
#include <new>
#include <string>

#include "platform/ZEB3DTool.h"
#include "platform/ZEBMatrEngine.h"
#include "standalone/MaterialEngine.h"
#include "standalone/ThreadCommunicator.h"
#include "tests/faults/allocator/FailingAllocator.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

using zebtest::TemporaryFile;

// Calls `work` with each of its allocations failing in turn, alone and with all later ones; `work` tells whether it was
// done. Returns how many failed.
template <class Work>
int failEach(Work work) {
  int failed = 0;
  for (const bool andAllLater : {false, true}) {
    bool isDone = false;
    for (unsigned long number = 1; !isDone && number < 100000; ++number) {
      zebtest::failAllocation(number, andAllLater);
      isDone = work();
      zebtest::failAllocation(0);
      failed += isDone ? 0 : 1;
    }
    EXPECT_TRUE(isDone);
  }
  return failed;
}

TEST(ThreadTeam, ThrowsWhereAThreadFindsNoMemory) {
  zeb::ThreadTeam team(4);
  const auto work = [](int rank, CZEBCom& com) {
    int value = rank == 0 ? 7 : 0;
    com.Broadi(value);
    com.Barrier();
  };
  const auto run = [&] {
    try {
      team.run(work);
      return true;
    } catch (const std::bad_alloc&) {
      return false;
    }
  };
  EXPECT_GT(failEach(run), 0);
}

TEST(MaterialEngine, TellsThatThereIsNoMemory) {
  const std::string name = std::string(ZEB_EXAMPLES_DIR) + "/materials/epoxy-encapsulant.json";
  const auto load = [&name] {
    ZebMaterial* const material = ZebGetMaterial(name);
    ZebReleaseMaterial(material);
    zebtest::failAllocation(0);
    EXPECT_EQ(zeb::lastMaterialError(), material == nullptr ? "out of memory" : "");
    return material != nullptr;
  };
  EXPECT_GT(failEach(load), 100);
}

TEST(MaterialEngine, NamesTheMaterialsThereAreOrTellsThatThereIsNoMemory) {
  const std::string folder = std::string(ZEB_EXAMPLES_DIR) + "/materials";
  const std::string complete = "material 'pa6' not found in " + folder + "; there are: epoxy-encapsulant, pa66-gf30";
  zeb::setMaterialFolders({folder});
  const auto search = [&complete] {
    const ZebMaterial* const material = ZebGetMaterial("pa6");
    zebtest::failAllocation(0);
    EXPECT_EQ(material, nullptr);
    const std::string error = zeb::lastMaterialError();
    EXPECT_TRUE(error == complete || error == "out of memory") << error;
    return error == complete;
  };
  EXPECT_GT(failEach(search), 10);
}

TEST(TextFileOpener, DeliversTheFileOrThrows) {
  const TemporaryFile file("one\r\ntwo\n");
  const auto open = [&file] {
    try {
      std::ifstream stream;
      CZEBFileIO().ZEBOpenFile(stream, file.path().c_str(), kZEBOpenRead, 500, 10);
      char text[20] = {};
      stream.read(text, sizeof text - 1);
      zebtest::failAllocation(0);
      EXPECT_STREQ(text, "one\ntwo\n");
      return true;
    } catch (const std::bad_alloc&) {
      return false;
    }
  };
  EXPECT_GT(failEach(open), 0);
}

}  // namespace
