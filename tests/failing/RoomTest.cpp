// Room for lists is made when it is needed: a file that repeats a count does not make it again and again.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "blocks/CZEBCMPUNFSettingParm.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_HRSteady.h"
#include "cmx/CZEBKNCMXCompParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "tests/failing/Failures.h"
#include "tests/support/TemporaryFile.hpp"

namespace {

std::string repeated(const std::string& line, int times) {
  std::string text;
  for (; times > 0; --times) text += line;
  return text;
}

TEST(Room, IsMadeOnceForARepeatedGateCount) {
  const zebtest::TemporaryFile file("<FILL_ADVANCED_HRSteady>\n" + repeated("ValueNoHRGate = 1000000\n", 20'000) +
                                    "ValueHRGateType = 1\n</FILL_ADVANCED_HRSteady>\n");
  CZEBKNCMXCompParm set(0);
  const zebtest::LargeAllocations arrays(8'000'000);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(arrays.count(), 1);
  EXPECT_EQ(set.getFILL_ADVANCED_HRSteady()->iNHRGate(), 1'000'000);
  EXPECT_NE(set.getFILL_ADVANCED_HRSteady()->pHRGateBC(), nullptr);
}

TEST(Room, IsMadeOnceForARepeatedCountOfDispenserPoints) {
  const zebtest::TemporaryFile file("[UNFSetting]\nFillType = 2\n" + repeated("nDispenserPoint = 300000\n", 1000) +
                                    "Point_x1 = 1.5\n[/UNFSetting]\n");
  CZEBKNCMPCompParm set(0, 0);
  const zebtest::LargeAllocations arrays(7'200'000);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(arrays.count(), 1);
  double point[3] = {};
  std::vector<double*> points(300'001, static_cast<double*>(point));
  double other[3] = {};
  std::fill(points.begin() + 2, points.end(), static_cast<double*>(other));
  double speed = 0.0;
  EXPECT_EQ(set.getUNFSettingParm()->dDispenser(points.data(), speed), 1);
  EXPECT_EQ(std::count(point, point + 3, 1.5), 1);
  EXPECT_EQ(std::count(other, other + 3, 0.0), 3);
}

}  // namespace
