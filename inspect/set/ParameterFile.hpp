// A parameter file of any kind as the tools look at it, read by the reader it was written for.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cmx/CZEBKNCMXCompParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Analysis.hpp"
#include "inspect/set/Inspection.hpp"
#include "stdcmp/CZEBKNstdCMPCompParm.h"

namespace zeb {

enum class FileKind : int {
  kCmp,  ///< computation parameters
  kCmx,  ///< analysis settings
  kStd,  ///< a CMP file through the eyes of the standard solver; never recognised, only asked for
};

/// "cmp", "cmx", "std".
std::string_view kindName(FileKind kind);
std::optional<FileKind> kindNamed(std::string_view name);
/// The names of all kinds.
std::vector<std::string> kindNames();
/// What the catalogue calls the kind's format: "CMP".
std::string_view formatOf(FileKind kind);

/// What the file's first block tag or section opening says; nothing when its first million bytes hold neither.
std::optional<FileKind> recogniseKind(const std::string& fileName);

/// What one of the three readers made of a file: the pointer of that kind is set, the others are null.
struct ParameterFile {
  std::unique_ptr<CZEBKNCMPCompParm> cmp;
  std::unique_ptr<CZEBKNCMXCompParm> cmx;
  std::unique_ptr<CZEBKNstdCMPCompParm> standard;

  /// Every block under the name that engineers use for it. Valid as long as the set.
  std::vector<BlockView> blocks() const;
};

/// Reads the file as a solver would. `options` matter to kCmp alone; `com` and `observer` may be null.
ParameterFile readParameterFile(const std::string& fileName, FileKind kind, const AnalysisOptions& options,
                                CZEBCom* com, ReadObserver* observer);

}  // namespace zeb
