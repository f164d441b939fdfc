// Every setter changes the value behind its getter and nothing else.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <utility>

#include "ZEBKNCompParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "tests/support/SetValues.hpp"
#include "tests/support/Tsv.hpp"

namespace {

struct Setter {
  std::string argument;
  std::function<void(CZEBKNCMPCompParm& set, double value)> call;
};

template <class Block, class Result, class Argument>
Setter setterOf(Block* (CZEBKNCMPCompParm::*block)() const, Result (Block::*setter)(Argument)) {
  const auto call = [=](CZEBKNCMPCompParm& set, double value) {
    ((set.*block)()->*setter)(static_cast<Argument>(value));
  };
  return {std::is_same_v<Argument, int> ? "int" : std::is_same_v<Argument, bool> ? "bool" : "double", call};
}

#define SETTER(Block, accessor, name) \
  { #Block "::" #name, setterOf(&CZEBKNCMPCompParm::accessor, &Block::name) }

const std::map<std::string, Setter> kSetters{
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetBarrelCompressible),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetCouple_VE),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetDeformMethod),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetHotInitT),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetHotRunnerSurfaceT),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetICM_MeshDeformMethod),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetLength_Criterion),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetOutputEOSc2f),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetParticleSubDt),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetSIMPLE_LowerLimit),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetSpruePressureMin),
    SETTER(CZEBCMPGeneralParm, getGeneralParm, SetUVWPT_VolumeFlux),
    SETTER(CZEBCMPTimeStepSizeCtrlParm, getTimeStepSizeCtrlParm, SetFixDt),
    SETTER(CZEBCMPTimeStepSizeCtrlParm, getTimeStepSizeCtrlParm, SetHRVof),
    SETTER(CZEBCMPTimeStepSizeCtrlParm, getTimeStepSizeCtrlParm, SetVof_Scheme),
    SETTER(CZEBCMPHRSchemesParm, getHRSchemesParm, SetHRMethod),
    SETTER(CZEBCMPStableFlagParm, getStableFlagParm, SetnSmooth_dP),
    SETTER(CZEBCMPStableFlagParm, getStableFlagParm, SetnPJMSmooth_dP),
    SETTER(CZEBCMPCompressibleFlowParm, getCompressibleFlowParm, SetVentAirDdp),
    SETTER(CZEBCMPViscositySetting2Parm, getViscositySetting2Parm, SetLowVisT),
    SETTER(CZEBCMPViscositySetting2Parm, getViscositySetting2Parm, SetLowVisSR),
    SETTER(CZEBCMPVEParm, getVEParm, setIstoCalcRS),
    SETTER(CZEBCMPVEParm, getVEParm, setVEModel),
    SETTER(CZEBCMPVEParm, getVEParm, setTgPoint),
};
#undef SETTER

TEST(Setters, EachSetsTheValueBehindItsGetterAndNothingElse) {
  const zebtest::Values defaults = zebtest::valuesOf(zeb::blocksOf(CZEBKNCMPCompParm(0, 0)));
  std::size_t called = 0;
  for (const zebtest::TsvRow& row : zebtest::readTsv("setters.tsv")) {
    if (row.at("class").rfind("CZEBCMX", 0) == 0) continue;
    const std::string name = row.at("class") + "::" + row.at("setter");
    SCOPED_TRACE(name);
    const auto setter = kSetters.find(name);
    ASSERT_NE(setter, kSetters.end());
    EXPECT_EQ(setter->second.argument, row.at("argument"));
    const double value = row.at("argument") == "int" ? 47.0 : row.at("argument") == "bool" ? 1.0 : 47.25;
    CZEBKNCMPCompParm set(0, 0);
    setter->second.call(set, value);
    ++called;
    // What only a setter knows of has no getter; the dump shows it.
    const auto changes = zebtest::differences(defaults, zebtest::valuesOf(zeb::blocksOf(set)));
    ASSERT_EQ(changes.size(), 1u);
    const std::string behind = row.at("getter") == "-" ? "m_" : row.at("getter");
    EXPECT_NE(changes.front().find("." + behind), std::string::npos) << changes.front();
    EXPECT_TRUE(changes.front().ends_with(" = " + zebtest::numberText(value)) ||
                (row.at("argument") == "bool" && changes.front().ends_with(" = true")))
        << changes.front();
  }
  EXPECT_EQ(called, kSetters.size());
}

}  // namespace
