// One analysis as the tools look at it: which file, for which molding and material, read and repaired by the library
// itself.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "platform/ZEBCom.h"

namespace zeb {

struct AnalysisOptions {
  int molding = 0;  ///< the place in moldingTypes()
  int material = 0;
  bool wax = false;
  bool viscoelastic = false;
  bool repair = true;

  bool operator==(const AnalysisOptions&) const = default;
};

/// The code of a molding type given by name (case does not matter) or number.
std::optional<int> moldingCode(const std::string& nameOrCode);
/// "IM, FAIM, …": the names of all molding types.
std::string moldingNames();

/// A parameter set that went through a solver's calls: set up, read, repaired. `com` and `observer` may be null.
std::unique_ptr<CZEBKNCMPCompParm> analyse(const std::string& fileName, const AnalysisOptions& options, CZEBCom* com,
                                           ReadObserver* observer);

/// Whether a file can be read: empty, or the reason why not ("is a directory").
std::string whyUnreadable(const std::string& fileName);

}  // namespace zeb
