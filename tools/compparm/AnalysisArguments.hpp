// The arguments that say which analysis a command looks at.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "inspect/Analysis.hpp"

namespace compparm {

struct AnalysisArguments {
  std::string file;
  zeb::AnalysisOptions options;

  /// Adds FILE and the options for molding, material and reading.
  void addTo(CLI::App& command);
  /// Empty, or why the analysis cannot be read.
  std::string problem() const;
  /// Whether an option differs from its default, so that the file must be a CMP file.
  bool isForCmpOnly() const;
  /// "IM"
  std::string moldingName() const;
};

}  // namespace compparm
