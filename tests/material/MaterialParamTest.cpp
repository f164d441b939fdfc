// The material object by itself: deep copies, messages, ownership and what an engine may get wrong.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "material/CZEBKNMaterialParam.h"
#include "tests/material/FakeEngine.h"
#include "tests/material/MaterialExamples.h"
#include "tests/material/RecordText.hpp"
#include "tests/support/Printed.hpp"

namespace {

using zebtest::printedBy;
using zebtest::recordText;

template <class Operation, class Signature>
constexpr bool kIs = std::is_same_v<Operation, Signature>;

static_assert(kIs<decltype(&CZEBKNMaterialParam::SetInput), int (CZEBKNMaterialParam::*)(std::string, CZEBCom*)>);
static_assert(kIs<decltype(&CZEBKNMaterialParam::GetMtcData), const ZEB_MTC* (CZEBKNMaterialParam::*)(int) const>);
static_assert(kIs<decltype(&CZEBKNMaterialParam::GetZebMaterial), ZebMaterial* (CZEBKNMaterialParam::*)() const>);

TEST(MaterialParam, IsEmptyBeforeItsInput) {
  const CZEBKNMaterialParam param;
  EXPECT_EQ(param.GetZebMaterial(), nullptr);
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(param.GetMtcData(0), nullptr); }),
            "icount is exceed the maximum number of m_nMtcCount.\n");
}

TEST(MaterialParam, CopiesEverythingBeforeTheEngineReleasesIt) {
  FakeEngine engine;
  makeFiveCoefficientMaterial(engine);
  int engineOwn = 0;
  engine.material.pEngine = &engineOwn;
  CZEBKNMaterialParam param;
  EXPECT_EQ(param.SetInput("EP", nullptr), 1);
  EXPECT_EQ(engine.calls, (std::vector<std::string>{"ZebGetMaterial EP", "ZebGetMTCInfo", "ZebGetMTCData 0",
                                                    "ZebGetMTCData 1", "ZebReleaseMaterial"}));
  const ZebMaterial& material = *param.GetZebMaterial();
  EXPECT_EQ(material.iHeader[0], -1);
  EXPECT_EQ(material.iHeader[5], 6);
  EXPECT_STREQ(material.szText[0], "EP \"thermoset\"");
  EXPECT_STREQ(material.szText[1], "");
  EXPECT_STREQ(material.szText[6], "last");
  EXPECT_EQ(material.table[1].iA, 21);
  EXPECT_EQ(material.table[1].iB, 22);
  ASSERT_EQ(material.table[1].iCount, 1);
  EXPECT_EQ(material.table[1].pdValue[0], 20.5);
  EXPECT_EQ(material.pEngine, nullptr);
  EXPECT_EQ(material.iModel[2], 3);
  EXPECT_EQ(material.dLast, -1.0);
  const double coefficients[] = {0.1, 0.2, 0.3, 0.4, 0.5, 0.0};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(material.pdCoefficient[i], coefficients[i]) << i;
  const ZEB_MTC* const curve = param.GetMtcData(0);
  ASSERT_NE(curve, nullptr);
  EXPECT_EQ(curve->iA, 51);
  EXPECT_EQ(curve->iB, 52);
  ASSERT_EQ(curve->iCount, 1);
  EXPECT_EQ(curve->pdValue[0], 3.5);
  EXPECT_EQ(curve->pEntry[0].iValue[1], 2);
  EXPECT_EQ(curve->pEntry[0].dValue[20], 120.5);
  EXPECT_EQ(param.GetMtcData(1)->iCount, 0);
}

TEST(MaterialParam, CurveOutsideOfTheCountIsNullAndToldFromTheCountOn) {
  FakeEngine engine;
  makeFiveCoefficientMaterial(engine);
  CZEBKNMaterialParam param;
  param.SetInput("EP", nullptr);
  for (const int i : {-1, INT_MIN, 2, 3, INT_MAX}) {
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(param.GetMtcData(i), nullptr); }),
              i < 0 ? "" : "icount is exceed the maximum number of m_nMtcCount.\n");
  }
}

TEST(MaterialParam, UsesAsManyCoefficientsAsTheModelSays) {
  const struct {
    int model, used;
  } cases[] = {{1, 1}, {2, 2}, {3, 5}, {0, 0}, {4, 0}, {-1, 0}, {INT_MAX, 0}, {INT_MIN, 0}};
  for (const auto& c : cases) {
    FakeEngine engine;
    engine.setModel(0, 0, c.model, 0, {1, 1, 1, 1, 1, 1}, 0.0);
    CZEBKNMaterialParam param;
    param.SetInput("X", nullptr);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(param.GetZebMaterial()->pdCoefficient[i], i < c.used ? 1.0 : 0.0) << c.model;
  }
}

TEST(MaterialParam, LongTextsAreCut) {
  FakeEngine engine;
  engine.setText(1, std::string(254, 'a'));
  engine.setText(2, std::string(255, 'b'));
  engine.setText(3, std::string(5000, 'c'));
  std::vector<char> unterminated(255, 'd');
  engine.material.szText[3] = unterminated.data();
  CZEBKNMaterialParam param;
  param.SetInput("X", nullptr);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(param.GetZebMaterial()->szText[i], std::string(254, static_cast<char>('a' + i)));
  }
  EXPECT_STREQ(param.GetZebMaterial()->szText[4], "") << "a null text";
}

void expectEmpty(const ZEB_MTC& curve) {
  EXPECT_EQ(curve.iCount, 0);
  ASSERT_NE(curve.pEntry, nullptr);
  ASSERT_NE(curve.pdValue, nullptr);
  EXPECT_EQ(curve.pEntry[0].iValue[2], 0);
  EXPECT_EQ(curve.pdValue[0], 0.0);
}

TEST(MaterialParam, CountsWithoutArraysAreTakenAsZero) {
  FakeEngine engine;
  engine.material.table[16].iCount = 3;
  engine.material.iModel[2] = 3;
  ZEB_MTC& noEntries = engine.addCurve(1, 2, {{1.0, {1, 1, 1}, 1.0}});
  noEntries.pEntry = nullptr;
  ZEB_MTC& noValues = engine.addCurve(3, 4, {{1.0, {1, 1, 1}, 1.0}});
  noValues.pdValue = nullptr;
  engine.addCurve(5, 6, {{1.0, {1, 1, 1}, 1.0}}).iCount = -1;
  engine.addCurve(7, 8, {{1.0, {1, 1, 1}, 1.0}}).iCount = 1'000'001;
  CZEBKNMaterialParam param;
  EXPECT_EQ(printedBy([&] { param.SetInput("X", nullptr); }),
            "Material: the values of property table 17 (3) are missing, 0 is used.\n"
            "Material: the values of the coefficients (5) are missing, 0 is used.\n"
            "Material: the values of test curve 1 (1) are missing, 0 is used.\n"
            "Material: the values of test curve 2 (1) are missing, 0 is used.\n"
            "Material: the count of test curve 3 (-1) is not between 0 and 1000000, 0 is used.\n"
            "Material: the count of test curve 4 (1000001) is not between 0 and 1000000, 0 is used.\n");
  EXPECT_EQ(param.GetZebMaterial()->table[16].iCount, 0);
  for (int i = 0; i < 4; ++i) {
    ASSERT_NE(param.GetMtcData(i), nullptr);
    EXPECT_EQ(param.GetMtcData(i)->iA, 2 * i + 1);
    expectEmpty(*param.GetMtcData(i));
  }
}

TEST(MaterialParam, CurveThatTheEngineDoesNotHaveIsToldAndEmpty) {
  FakeEngine engine;
  engine.addCurve(1, 2, {{1.0, {1, 1, 1}, 1.0}});
  engine.reportedCurves = 3;
  CZEBKNMaterialParam param;
  EXPECT_EQ(printedBy([&] { param.SetInput("X", nullptr); }),
            "Material: the engine does not have test curve 2, an empty one is used.\n"
            "Material: the engine does not have test curve 3, an empty one is used.\n");
  EXPECT_EQ(param.GetMtcData(0)->iCount, 1);
  for (const int i : {1, 2}) {
    ASSERT_NE(param.GetMtcData(i), nullptr);
    EXPECT_EQ(param.GetMtcData(i)->iA, 0);
    expectEmpty(*param.GetMtcData(i));
  }
}

TEST(MaterialParam, SecondInputReplacesTheRecordAndKeepsWhatWasHandedOut) {
  CZEBKNMaterialParam param;
  {
    FakeEngine engine;
    makeFiveCoefficientMaterial(engine);
    param.SetInput("EP", nullptr);
  }
  const ZebMaterial* const first = param.GetZebMaterial();
  const ZEB_MTC* const firstCurve = param.GetMtcData(0);
  FakeEngine engine;
  makeOneCoefficientMaterial(engine);
  param.SetInput("PP", nullptr);
  EXPECT_STREQ(param.GetZebMaterial()->szText[0], "PP crystalline");
  EXPECT_EQ(param.GetZebMaterial()->table[1].iCount, 0) << "nothing is left of the first material";
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(param.GetMtcData(0), nullptr); }),
            "icount is exceed the maximum number of m_nMtcCount.\n");
  EXPECT_STREQ(first->szText[0], "EP \"thermoset\"");
  EXPECT_EQ(firstCurve->pEntry[0].dValue[0], 100.5);
}

TEST(MaterialParam, CopiesShareTheRecordAndMayAllBeDestroyed) {
  FakeEngine engine;
  makeOneCoefficientMaterial(engine);
  auto original = std::make_unique<CZEBKNMaterialParam>();
  original->SetInput("PP", nullptr);
  const CZEBKNMaterialParam copied(*original);
  CZEBKNMaterialParam assigned;
  assigned = *original;
  EXPECT_EQ(copied.GetZebMaterial(), original->GetZebMaterial());
  EXPECT_EQ(assigned.GetZebMaterial(), original->GetZebMaterial());
  original.reset();
  EXPECT_STREQ(copied.GetZebMaterial()->szText[0], "PP crystalline");
  EXPECT_STREQ(assigned.GetZebMaterial()->szText[6], "seventh");
}

TEST(MaterialParam, AssignmentKeepsWhatWasHandedOut) {
  FakeEngine engine;
  makeOneCoefficientMaterial(engine);
  CZEBKNMaterialParam param;
  param.SetInput("PP", nullptr);
  const ZebMaterial* const handedOut = param.GetZebMaterial();
  param = CZEBKNMaterialParam();
  EXPECT_EQ(param.GetZebMaterial(), nullptr);
  EXPECT_EQ(handedOut->dLast, 42.5);
}

TEST(MaterialParam, CopyKeepsItsMaterialWhenTheOriginalLoadsAnother) {
  CZEBKNMaterialParam original;
  {
    FakeEngine engine;
    makeFiveCoefficientMaterial(engine);
    original.SetInput("EP", nullptr);
  }
  const CZEBKNMaterialParam copy(original);
  const std::string before = recordText(copy);
  {
    FakeEngine engine;
    makeOneCoefficientMaterial(engine);
    original.SetInput("PP", nullptr);
  }
  EXPECT_EQ(recordText(copy), before);
  EXPECT_NE(recordText(original), before);
  const CZEBKNMaterialParam& itself = original;
  original = itself;
  EXPECT_STREQ(original.GetZebMaterial()->szText[0], "PP crystalline");
}

}  // namespace
