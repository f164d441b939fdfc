// getLine1 to getLine19: the fixed-line head handed back line by line, in the order of each line.
#include <gtest/gtest.h>

#include "frame/CZEBKNCMPCompParm.h"
#include "tests/support/TemporaryFile.hpp"

namespace {

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

constexpr double kSentinelDouble = -12345.5;
constexpr int kSentinelInt = -12345;

class HeadAccessors : public testing::Test {
 protected:
  HeadAccessors() { m_set.setSolidFillBlock(m_file.path()); }

  void expectInts(const std::vector<int>& expected) const {
    for (std::size_t k = 0; k < std::size(m_ints); ++k) {
      EXPECT_EQ(m_ints[k], k < expected.size() ? expected[k] : kSentinelInt) << "int " << k + 1;
    }
  }
  void expectDoubles(const std::vector<double>& expected) const {
    for (std::size_t k = 0; k < std::size(m_doubles); ++k) {
      EXPECT_EQ(m_doubles[k], k < expected.size() ? expected[k] : kSentinelDouble) << "double " << k + 1;
    }
  }

  zebtest::TemporaryFile m_file{kFile};
  CZEBKNCMPCompParm m_set{0, 0};
  int m_ints[8] = {kSentinelInt, kSentinelInt, kSentinelInt, kSentinelInt,
                   kSentinelInt, kSentinelInt, kSentinelInt, kSentinelInt};
  int (&i)[8] = m_ints;
  double m_doubles[8] = {kSentinelDouble, kSentinelDouble, kSentinelDouble, kSentinelDouble,
                         kSentinelDouble, kSentinelDouble, kSentinelDouble, kSentinelDouble};
  double (&d)[8] = m_doubles;
};

TEST_F(HeadAccessors, Line1IsTheChoiceOfSolvers) {
  EXPECT_EQ(m_set.getLine1(i[0], i[1], i[2], i[3], i[4], i[5]), 1);
  expectInts({101, 102, 103, 104, 105, 106});
}

TEST_F(HeadAccessors, Line2IsTheRestarts) {
  EXPECT_EQ(m_set.getLine2(i[0], i[1], i[2], i[3]), 1);
  expectInts({201, 202, 203, 204});
}

TEST_F(HeadAccessors, Line3IsThePreconditioner) {
  EXPECT_EQ(m_set.getLine3(i[0]), 1);
  expectInts({301});
}

TEST_F(HeadAccessors, Line4IsTheIterationCounts) {
  EXPECT_EQ(m_set.getLine4(i[0], i[1], i[2], i[3], i[4], i[5]), 1);
  expectInts({401, 402, 403, 404, 405, 406});
}

TEST_F(HeadAccessors, Line5IsTheTimeSteps) {
  EXPECT_EQ(m_set.getLine5(i[0], i[1], d[0], d[1]), 1);
  expectInts({501, 502});
  expectDoubles({50.25, 50.5});
}

TEST_F(HeadAccessors, Line6IsTheTolerance) {
  EXPECT_EQ(m_set.getLine6(d[0]), 1);
  expectDoubles({60.25});
}

TEST_F(HeadAccessors, Line7IsTheBlending) {
  EXPECT_EQ(m_set.getLine7(d[0], d[1], d[2], d[3], d[4], d[5]), 1);
  expectDoubles({70.125, 70.25, 70.375, 70.5, 70.625, 70.75});
}

TEST_F(HeadAccessors, Line8IsTheInnerIterations) {
  EXPECT_EQ(m_set.getLine8(i[0], i[1], i[2], i[3], i[4], i[5]), 1);
  expectInts({801, 802, 803, 804, 805, 806});
}

TEST_F(HeadAccessors, Line9IsTheInnerTolerances) {
  EXPECT_EQ(m_set.getLine9(d[0], d[1], d[2], d[3], d[4], d[5]), 1);
  expectDoubles({90.125, 90.25, 90.375, 90.5, 90.625, 90.75});
}

TEST_F(HeadAccessors, Line10IsTheRelaxation) {
  EXPECT_EQ(m_set.getLine10(d[0], d[1], d[2], d[3], d[4], d[5]), 1);
  expectDoubles({100.125, 100.25, 100.375, 100.5, 100.625, 100.75});
}

TEST_F(HeadAccessors, Line12IsTheCheck) {
  EXPECT_EQ(m_set.getLine12(i[0]), 1);
  expectInts({1201});
}

TEST_F(HeadAccessors, Line14IsTheRelaxationOfTheMaterial) {
  EXPECT_EQ(m_set.getLine14(d[0], d[1]), 1);
  expectDoubles({140.25, 140.5});
}

TEST_F(HeadAccessors, Line16HasLostItsMiddleNumber) {
  EXPECT_EQ(m_set.getLine16(i[0], d[0]), 1);
  expectInts({3});
  expectDoubles({0.25});
}

TEST_F(HeadAccessors, Line18LeavesItsFirstAndFifthArgumentAlone) {
  double unused1 = kSentinelDouble;
  int unused5 = kSentinelInt;
  EXPECT_EQ(m_set.getLine18(unused1, i[0], d[0], d[1], unused5, d[2], d[3], d[4], i[1], d[5]), 1);
  EXPECT_EQ(unused1, kSentinelDouble);
  EXPECT_EQ(unused5, kSentinelInt);
  expectInts({1802, 1809});
  expectDoubles({180.25, 180.375, 180.5, 180.625, 180.75, 180.875});
}

TEST_F(HeadAccessors, Line19IsTheLateAdditions) {
  EXPECT_EQ(m_set.getLine19(d[0], i[0], i[1], i[2], i[3], i[4], i[5], i[6], i[7], d[1]), 1);
  expectInts({1902, 1903, 1904, 1905, 1906, 1907, 1908, 1909});
  expectDoubles({190.125, 190.25});
}

TEST(HeadAccessorsWithoutHead, ReturnTheDefaults) {
  const CZEBKNCMPCompParm set(0, 0);
  int i[8];
  double d[6];
  EXPECT_EQ(set.getLine2(i[0], i[1], i[2], i[3]), 1);
  EXPECT_EQ(i[2], 1);
  EXPECT_EQ(i[3], 10);
  EXPECT_EQ(set.getLine5(i[0], i[1], d[0], d[1]), 1);
  EXPECT_EQ(i[0], 100000);
  EXPECT_EQ(i[1], 50);
  EXPECT_EQ(d[0], 0.0005);
  EXPECT_EQ(d[1], 0.0);
  EXPECT_EQ(set.getLine16(i[0], d[0]), 1);
  EXPECT_EQ(i[0], 14);
  EXPECT_EQ(d[0], 0.5);
  EXPECT_EQ(set.getLine19(d[0], i[0], i[1], i[2], i[3], i[4], i[5], i[6], i[7], d[1]), 1);
  EXPECT_EQ(d[0], 2.0);
  EXPECT_EQ(d[1], 10000.0);
}

TEST(HeadAccessorsWithoutTool, ReturnAnErrorAndWriteNothing) {
  testing::internal::CaptureStdout();
  const CZEBKNCMPCompParm set(99, 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Undefined Molding Type: 99\n");
  double toler = kSentinelDouble;
  int check = kSentinelInt;
  EXPECT_EQ(set.getLine6(toler), -1);
  EXPECT_EQ(set.getLine12(check), -1);
  EXPECT_EQ(toler, kSentinelDouble);
  EXPECT_EQ(check, kSentinelInt);
}

}  // namespace
