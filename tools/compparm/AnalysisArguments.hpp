// The arguments that say which analysis a command looks at.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <optional>
#include <string>

#include "inspect/set/ParameterFile.hpp"
#include "tools/compparm/JsonText.hpp"

namespace compparm {

struct AnalysisArguments {
  std::string file;
  zeb::AnalysisOptions options;
  std::optional<zeb::FileKind> as;

  /// Adds FILE and the options for molding, material and reading.
  void addTo(CLI::App& command);
  /// Adds the option that says which reader takes the file.
  void addKindTo(CLI::App& command);
  /// Empty, or why the analysis cannot be read.
  std::string problem() const;
  /// The kind asked for, else what the file's content says, else a CMP file.
  zeb::FileKind kind() const;
  /// "IM"
  std::string moldingName() const;
  /// "molding type IM, material type 0", "analysis settings (CMX)"
  std::string readAs(zeb::FileKind kind) const;
  /// File, kind and, for a CMP file, molding and material.
  Json asJson(zeb::FileKind kind) const;
};

/// Adds an option that takes a molding type by its name or code and refuses any other text.
void addMolding(CLI::App& command, const std::string& name, std::function<void(int)> store, const std::string& about);

/// Adds --format with the given names, of which the first is the default.
void addFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names);

}  // namespace compparm
