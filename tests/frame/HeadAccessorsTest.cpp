// getLine1 to getLine19: the fixed-line head handed back line by line, in the order of each line.
#include <gtest/gtest.h>

#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/HeadLines.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

using HostSet = CZEBKNCMPCompParm;
using zebtest::HeadLine;
using zebtest::headLine;
using zebtest::kUnwritten;

// Every field differs from every other one and from its default; lines 11, 13, 15 and 17 carry nothing.
const char kFile[] =
    "[VER] 1023\n"
    "101 102 103 104 105 106\n"
    "201 202 203 204\n"
    "301\n"
    "401 402 403 404 405 406\n"
    "501 502 50.25 50.5\n"
    "60.25\n"
    "70.125 70.25 70.375 70.5 70.625 70.75\n"
    "801 802 803 804 805 806\n"
    "90.125 90.25 90.375 90.5 90.625 90.75\n"
    "100.125 100.25 100.375 100.5 100.625 100.75\n"
    "9 9 9 9 9 9\n"
    "1201\n"
    "9 9 9 9 9 9\n"
    "140.25 140.5\n"
    "[General]\n"
    "3 7 0.25\n"
    "9 9 9 9 9 9\n"
    "180.125 1802 180.25 180.375 1805 180.5 180.625 180.75 1809 180.875\n"
    "190.125 1902 1903 1904 1905 1906 1907 1908 1909 190.25\n";

TEST(HeadAccessors, HandOutTheLinesOfTheFile) {
  const zebtest::TemporaryFile file(kFile);
  HostSet set(0, 0);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(headLine(set, &HostSet::getLine1), (HeadLine{1, {101, 102, 103, 104, 105, 106}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine2), (HeadLine{1, {201, 202, 203, 204}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine3), (HeadLine{1, {301}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine4), (HeadLine{1, {401, 402, 403, 404, 405, 406}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine5), (HeadLine{1, {501, 502, 50.25, 50.5}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine6), (HeadLine{1, {60.25}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine7), (HeadLine{1, {70.125, 70.25, 70.375, 70.5, 70.625, 70.75}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine8), (HeadLine{1, {801, 802, 803, 804, 805, 806}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine9), (HeadLine{1, {90.125, 90.25, 90.375, 90.5, 90.625, 90.75}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine10), (HeadLine{1, {100.125, 100.25, 100.375, 100.5, 100.625, 100.75}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine12), (HeadLine{1, {1201}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine14), (HeadLine{1, {140.25, 140.5}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine16), (HeadLine{1, {3, 0.25}})) << "the middle number is lost";
  EXPECT_EQ(headLine(set, &HostSet::getLine18),
            (HeadLine{1, {kUnwritten, 1802, 180.25, 180.375, kUnwritten, 180.5, 180.625, 180.75, 1809, 180.875}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine19),
            (HeadLine{1, {190.125, 1902, 1903, 1904, 1905, 1906, 1907, 1908, 1909, 190.25}}));
}

TEST(HeadAccessors, HandOutTheDefaultsWithoutAHead) {
  const HostSet set(0, 0);
  EXPECT_EQ(headLine(set, &HostSet::getLine2), (HeadLine{1, {1, 1, 1, 10}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine5), (HeadLine{1, {100000, 50, 0.0005, 0}}));
}

TEST(HeadAccessors, RefuseAndWriteNothingWithoutATool) {
  const zeb::OutputCapture silence;
  const HostSet set(99, 0);
  const double none = kUnwritten;
  EXPECT_EQ(headLine(set, &HostSet::getLine1), (HeadLine{-1, {none, none, none, none, none, none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine2), (HeadLine{-1, {none, none, none, none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine3), (HeadLine{-1, {none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine4), (HeadLine{-1, {none, none, none, none, none, none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine5), (HeadLine{-1, {none, none, none, none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine6), (HeadLine{-1, {none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine7).answer, -1);
  EXPECT_EQ(headLine(set, &HostSet::getLine8).answer, -1);
  EXPECT_EQ(headLine(set, &HostSet::getLine9).answer, -1);
  EXPECT_EQ(headLine(set, &HostSet::getLine10).answer, -1);
  EXPECT_EQ(headLine(set, &HostSet::getLine12), (HeadLine{-1, {none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine14), (HeadLine{-1, {none, none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine16), (HeadLine{-1, {none, none}}));
  EXPECT_EQ(headLine(set, &HostSet::getLine18).answer, -1);
  EXPECT_EQ(headLine(set, &HostSet::getLine19).answer, -1);
}

}  // namespace
