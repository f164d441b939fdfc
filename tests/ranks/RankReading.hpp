// One parameter set read as a serial run, as rank 0 and as the other ranks, and all that can differ between them.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <sstream>
#include <string>

#include "blocks/CZEBCMPVEParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "inspect/set/Values.hpp"
#include "tests/support/RecordingCommunicator.h"

namespace zebtest {

struct Reading {
  std::string values;   ///< every member of every block, exactly
  std::string printed;  ///< while reading and repairing
};

struct ReadingOptions {
  int molding = 0;
  int material = 0;
  bool viscoelastic = false;
  bool repair = true;
};

/// Through a solver's calls. `com` null: a serial run.
inline Reading readAs(CZEBCom* com, const std::string& file, const ReadingOptions& options = {}) {
  const zeb::OutputCapture capture;
  CZEBKNCMPCompParm set(options.molding, options.material);
  if (com != nullptr) {
    EXPECT_EQ(set.setZEBCom(com), 1);
  }
  if (options.viscoelastic) set.getVEParm()->setIstoCalcRS(true);
  EXPECT_EQ(set.setSolidFillBlock(file), 1);
  if (options.repair) {
    EXPECT_EQ(set.modifyParameters(), 1);
  }
  return {zeb::fingerprint(zeb::blocksOf(set)), capture.text()};
}

inline std::string untouchedValues(const ReadingOptions& options = {}) {
  CZEBKNCMPCompParm set(options.molding, options.material);
  if (options.repair) set.modifyParameters();
  return zeb::fingerprint(zeb::blocksOf(set));
}

/// What every rank prints: what rank 0 prints but for the refusal of a count and the switch of the viscoelastic model.
inline std::string printedByAll(std::string text) {
  const std::string refusal = " is no valid count (", change = "Switch from ", model = " model";
  for (std::size_t at; (at = text.find(refusal)) != std::string::npos;) {
    const std::size_t begin = text.rfind('\n', at) + 1;
    text.erase(begin, text.find('\n', at) + 1 - begin);
  }
  for (std::size_t at; (at = text.find(change)) != std::string::npos;) {
    const std::size_t second = text.find(model, text.find(model, at) + 1);
    text.erase(at, second + model.size() - at);
  }
  return text;
}

/// Reads on rank 0 of `ranks` and on `others` (never opening the file: they are given a name that no file has), and
/// expects the same values everywhere. Returns rank 0's reading. `printsTheSame` false: rank 0 prints what others do
/// not.
inline Reading readOnRanks(const std::string& file, int ranks, std::initializer_list<int> others,
                           const ReadingOptions& options = {}, bool printsTheSame = true) {
  zeb::RecordingCommunicator first(ranks);
  const Reading reading = readAs(&first, file, options);
  for (const int rank : others) {
    zeb::ReplayingCommunicator other(first.log(), rank, ranks);
    try {
      const Reading received = readAs(&other, "no/such/file.cmp", options);
      EXPECT_TRUE(other.finished()) << "rank " << rank << " stopped after call " << other.callsMade() << " of "
                                    << first.log().size();
      // A plain comparison first: the texts are long, and printing their difference is slow.
      if (received.values != reading.values) {
        EXPECT_EQ(received.values, reading.values) << "rank " << rank;
      }
      if (printsTheSame && received.printed != printedByAll(reading.printed)) {
        EXPECT_EQ(received.printed, printedByAll(reading.printed)) << "rank " << rank;
      }
    } catch (const zeb::CallMismatch& mismatch) {
      ADD_FAILURE() << mismatch.what();
    }
  }
  return reading;
}

inline void expectSameReading(const Reading& actual, const Reading& expected) {
  if (actual.values != expected.values) {
    EXPECT_EQ(actual.values, expected.values);
  }
  if (actual.printed != expected.printed) {
    EXPECT_EQ(actual.printed, expected.printed);
  }
}

}  // namespace zebtest
