// What the host did to its locales and to std::cout: neither what is read nor what is printed may change.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <locale>
#include <memory>
#include <sstream>
#include <vector>

#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPIteratParm.h"
#include "blocks/CZEBCMPShortShotParm.h"
#include "blocks/CZEBCoolFastCoolParm.h"
#include "tests/ranks/Examples.hpp"
#include "tests/ranks/RankReading.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

using zebtest::Reading;
using zebtest::TemporaryFile;

// A host that runs in German: decimal comma, digits in groups of three, in C and in C++, and on std::cout.
class GermanHost {
 public:
  GermanHost() : m_before(std::locale::global(std::locale("de_DE.UTF-8"))), m_stream(std::cout.imbue(std::locale())) {
    EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
  }
  ~GermanHost() {
    std::cout.imbue(m_stream);
    std::locale::global(m_before);
    std::setlocale(LC_ALL, "C");
  }
  GermanHost(const GermanHost&) = delete;
  GermanHost& operator=(const GermanHost&) = delete;

 private:
  std::locale m_before;
  std::locale m_stream;
};

// A host that left its format on std::cout.
class HostFormat {
 public:
  HostFormat() {
    m_before.copyfmt(std::cout);
    std::cout << std::hex << std::showbase << std::uppercase << std::showpos << std::scientific << std::boolalpha
              << std::left << std::setprecision(2) << std::setfill('*') << std::setw(100000);
  }
  ~HostFormat() { std::cout.copyfmt(m_before); }
  HostFormat(const HostFormat&) = delete;
  HostFormat& operator=(const HostFormat&) = delete;

 private:
  std::ios m_before{nullptr};
};

std::string dumpOf(CZEBKNCMPCompParm& set) {
  const zeb::OutputCapture capture;
  EXPECT_EQ(set.OutputParameters(), 1);
  return capture.text();
}

// Keys with an echo, an int of seven digits, fractions, lists with their messages.
const char kText[] =
    "[VER] 1023\n1234567 2 2 2 2 2\n\n\n\n1 2 0.125 0.25\n0.5\n"
    "\n\n\n\n\n\n\n\n\n\n\n\n1.5 0 0 0 0 0 0 0 0 0.25\n"
    "[CompressibleFlow]\nCompressible_SIMPLE_Niter = 1234567\nCompressible_TolPres = 0.125\nAirdDdp = 1234567.5\n"
    "[/CompressibleFlow]\n"
    "[General]\nVentMode = 1234567\nVECouplingDegree = 1234.5\n[/General]\n"
    "[ShortShot]\nTimeLimit = 1.25\nFRLimit = 0,5\n[/ShortShot]\n"
    "[RTM]\nVoidPrediction = 1234567\n[/RTM]\n"
    "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 1234567\n[/MultiGate]\n"
    "[FastCool]\n1017\n1234567 2\n";

const char kEcho[] =
    "Compressible_SIMPLE_Niter = 1234567\n"
    "Compressible_TolPres = 0.125\n"
    "AirdDdp     = 1.23457e+06\n"
    "m_dVECouplingDegree = 1234.500000 \n"
    "sline = VoidPrediction = 1234567\n"
    "ii = 1234567\n"
    "m_iVoidPrediction = 1234567\n";

void expectPlainValues(const CZEBKNCMPCompParm& set) {
  EXPECT_EQ(set.getIteratParm()->ilsolvU(), 1234567);
  EXPECT_EQ(set.getIteratParm()->ddt(), 0.125);
  EXPECT_EQ(set.getIteratParm()->dtoler(), 0.5);
  EXPECT_EQ(set.getIteratParm()->dWireEffectWeighting(), 1.5);
  EXPECT_EQ(set.getIteratParm()->dHighTempEPS(), 0.25);
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1234567);
  EXPECT_EQ(set.getGeneralParm()->dVECouplingDegree(), 1234.5);
  EXPECT_EQ(set.getShortShotParm()->dTimeLimit(), 1.25);
  EXPECT_EQ(set.getShortShotParm()->dFRLimit(), 0.0);  // "0,5": the number ends at the comma
  EXPECT_EQ(set.getCool_FastCoolParm()->iGetlsolvTP(), 1234567);
}

void expectPlainDump(const std::string& dump) {
  EXPECT_NE(dump.find("m_dTimeLimit\t= 1.25\n"), std::string::npos);
  EXPECT_NE(dump.find("m_dFRLimit\t\t= 0\n"), std::string::npos);
  EXPECT_NE(dump.find("= 1234567\n"), std::string::npos);
  EXPECT_EQ(dump.find("1.234.567"), std::string::npos);
  EXPECT_EQ(dump.find('*'), std::string::npos);
  EXPECT_EQ(dump.find("0X"), std::string::npos);
}

// Reads before and under the host's settings; values, echo and dump must not differ in a single byte.
template <class Host>
void expectUnchangedUnder() {
  const TemporaryFile file(kText);
  const Reading plain = zebtest::readAs(nullptr, file.path());
  EXPECT_EQ(plain.printed.substr(0, sizeof kEcho - 1), kEcho);
  CZEBKNCMPCompParm set(0, 0);
  {
    const zeb::OutputCapture silence;
    set.setSolidFillBlock(file.path());
  }
  expectPlainValues(set);
  const std::string dump = dumpOf(set);
  expectPlainDump(dump);
  // The same sets are dumped again: a dump shows addresses.
  std::vector<std::unique_ptr<CZEBKNCMPCompParm>> examples;
  std::vector<std::string> dumps;
  for (const std::string& name : zebtest::examples(".cmp")) {
    examples.push_back(std::make_unique<CZEBKNCMPCompParm>(0, 0));
    const zeb::OutputCapture silence;
    examples.back()->setSolidFillBlock(name);
    dumps.push_back(dumpOf(*examples.back()));
  }

  const Host host;
  expectSameReading(zebtest::readAs(nullptr, file.path()), plain);
  expectSameReading(zebtest::readOnRanks(file.path(), 2, {1}), plain);
  EXPECT_EQ(dumpOf(set), dump);
  CZEBKNCMPCompParm again(0, 0);
  {
    const zeb::OutputCapture silence;
    again.setSolidFillBlock(file.path());
  }
  expectPlainValues(again);
  for (std::size_t number = 0; number < examples.size(); ++number) EXPECT_EQ(dumpOf(*examples[number]), dumps[number]);
}

TEST(HostLocale, TheGermanOneIsThereAndBites) {
  const GermanHost host;
  std::ostringstream text;
  text << 1234567 << ' ' << 1.5;
  EXPECT_EQ(text.str(), "1.234.567 1,5");
  char printed[16];
  std::snprintf(printed, sizeof printed, "%.1f", 1.5);
  EXPECT_STREQ(printed, "1,5");
}

TEST(HostLocale, ChangesNeitherValuesNorEchoNorDump) { expectUnchangedUnder<GermanHost>(); }

TEST(HostLocale, OfTheExamplesGivesTheSameValuesAndText) {
  std::vector<Reading> plain;
  for (const std::string& file : zebtest::examples(".cmp")) plain.push_back(zebtest::readAs(nullptr, file));
  const GermanHost host;
  std::size_t number = 0;
  for (const std::string& file : zebtest::examples(".cmp")) {
    SCOPED_TRACE(file);
    expectSameReading(zebtest::readAs(nullptr, file), plain[number]);
    expectSameReading(zebtest::readOnRanks(file, 2, {1}), plain[number++]);
  }
}

TEST(HostLocale, OfTheViscoelasticFileGivesTheSameValuesAndText) {
  const TemporaryFile cmp("");
  const std::string vecmp = cmp.path().substr(0, cmp.path().rfind('.')) + ".vecmp";
  const auto read = [&](bool withFile) {
    std::filesystem::remove(vecmp);
    if (withFile) std::ofstream(vecmp) << zebtest::contentOf(zebtest::example("thin-wall-cover.vecmp"));
    Reading reading = zebtest::readAs(nullptr, cmp.path(), {.viscoelastic = true});
    reading.printed += zebtest::contentOf(vecmp);  // the default file, when there was none
    std::filesystem::remove(vecmp);
    return reading;
  };
  const Reading fromFile = read(true), fromDefault = read(false);
  EXPECT_NE(fromFile.values, fromDefault.values);
  EXPECT_NE(fromFile.printed.find("DeltaTime          = 0.005\n"), std::string::npos);
  const GermanHost host;
  expectSameReading(read(true), fromFile);
  expectSameReading(read(false), fromDefault);
}

TEST(HostFormatFlags, LeftOnStandardOutputChangeNeitherValuesNorEchoNorDump) { expectUnchangedUnder<HostFormat>(); }

TEST(HostFormatFlags, AreLeftAsTheHostSetThem) {
  const HostFormat host;
  const auto flags = std::cout.flags();
  const TemporaryFile file(kText);
  CZEBKNCMPCompParm set(0, 0);
  const zeb::OutputCapture silence;
  set.setSolidFillBlock(file.path());
  set.OutputParameters();
  EXPECT_EQ(std::cout.flags(), flags);
  EXPECT_EQ(std::cout.precision(), 2);
  EXPECT_EQ(std::cout.fill(), '*');
}

}  // namespace
