// The commands of compparm. Each adds its options to the command line and says what to run.
#pragma once

#include <CLI/CLI.hpp>

namespace compparm {

/// Adds the command; when it is chosen, `exitCode` receives its result.
void addShow(CLI::App& app, int& exitCode);
void addCheck(CLI::App& app, int& exitCode);
void addSchedule(CLI::App& app, int& exitCode);
void addMaterial(CLI::App& app, int& exitCode);
void addExplain(CLI::App& app, int& exitCode);
void addDiff(CLI::App& app, int& exitCode);
void addTemplate(CLI::App& app, int& exitCode);
void addList(CLI::App& app, int& exitCode);

}  // namespace compparm
