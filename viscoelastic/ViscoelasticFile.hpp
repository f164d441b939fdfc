// The viscoelastic file: a positional head of nine lines and the tag blocks behind it, and the default file.
#pragma once

#include <istream>
#include <string>
#include <string_view>

#include "blocks/CZEBCMPVEParm.h"
#include "engine/LineSource.hpp"

namespace zeb {

class ReadObserver;

/// This block stands in every default file, but nothing reads it.
inline constexpr std::string_view kUnreadTagBlock = "PLOT_TRANSIENT_SHEAR_MATERIAL";

/// Why an observer is told of a refusal where a solver leaves the file as it is.
inline constexpr std::string_view kUnreadable = "the file is there but cannot be read";

/// Whether the host asked for the viscoelastic file (setIstoCalcRS).
bool wantsViscoelasticFile(const CZEBCMPVEParm& block);

/// Reads an open file into the block and returns 1 on every rank; or returns -1 on every rank for a file that is not
/// valid, with the block's bounds set anew and nothing of the file kept. Collective where `source` has a communicator.
/// Touches no file.
int readViscoelasticLines(std::istream& stream, CZEBCMPVEParm& block, const LineSource& source, ReadObserver* observer);

/// Opens the file on rank 0 and reads it as above on every rank. Where it is missing or not valid, rank 0 puts the
/// default file in its place, unless `writesDefault` is false: tools only look. A file that is there but cannot be
/// opened, or cannot be read up to the head's end, counts as not valid, but is left alone; rank 0 prints one line.
int readViscoelasticFile(const std::string& fileName, CZEBCMPVEParm& block, const LineSource& source,
                         ReadObserver* observer, bool writesDefault = true);

/// Writes a complete file with the block's head values, for the user to edit. A regular file that stands there is kept
/// as `fileName` + ".bak" (".bak.1", ... where that is taken), unless it is such a file that nobody has edited; one
/// that appears meanwhile stays. The new one appears whole or not at all, also where several jobs write at once.
/// Returns 1; on a failure prints one line, leaves the file as it was and returns -1.
int writeDefaultViscoelasticFile(const std::string& fileName, const CZEBCMPVEParm& block);

}  // namespace zeb
