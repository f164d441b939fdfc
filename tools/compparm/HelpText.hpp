// What the command line tells about itself: examples, suggestions, choices, the manual page.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace compparm {

struct Example {
  std::string_view line;  ///< behind "compparm "
  std::string_view what;
};

/// "Examples:" with one line each, what it does in a column of its own.
std::string examplesText(const std::vector<Example>& examples);

/// "; did you mean X or Y?" with the nearest of the known names; empty when none is near.
std::string didYouMean(std::string_view name, const std::vector<std::string>& known);

/// The commands that people are told of.
std::vector<const CLI::App*> commandsOf(const CLI::App& app);
/// "IM", "FAIM", ... in the order of their codes.
std::vector<std::string> moldingTypeNames();
/// "--molding", "-h": every name of every option of the command.
std::vector<std::string> optionNames(const CLI::App& command);
/// The values that the option knows by name; empty where anything goes.
std::vector<std::string> choicesOf(const CLI::Option& option);

/// What is wrong with the words of the command line, which could not be parsed: an unknown command or option, or else
/// what the parser says.
std::string problemOf(const CLI::App& app, const std::vector<std::string>& words, const std::string& parserText);

/// What the last of the words can become, for the shell's completion; nothing where it is a file.
std::vector<std::string> completions(const CLI::App& app, const std::vector<std::string>& words);

/// The manual page, for man(1).
std::string manualPage(const CLI::App& app);

}  // namespace compparm
