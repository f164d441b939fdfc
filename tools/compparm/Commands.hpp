// The commands of compparm. Each adds its options to the command line and says what to run.
#pragma once

#include <CLI/CLI.hpp>

namespace compparm {

/// Adds the command; when it is chosen, `exitCode` receives its result.
void addShow(CLI::App& app, int& exitCode);

}  // namespace compparm
