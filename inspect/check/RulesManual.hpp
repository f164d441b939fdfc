// What the manual tells about each rule: why the line matters, a file that the rule finds and one that it leaves alone.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "inspect/check/Rules.hpp"
#include "inspect/set/ParameterFile.hpp"

namespace zeb {

/// One per rule, proven by the tests: the bad file gives this finding at this place, the good one none at all.
struct RuleExample {
  CheckRule rule;
  std::string_view text;  ///< what the reader does with such a line
  std::string bad;
  int line;  ///< 0: the finding belongs to the whole file
  int column;
  std::string_view message;
  std::string good;

  FileKind kind = FileKind::kCmp;
  int molding = 0;
  std::string badCompanion = {};  ///< viscoelastic file; both files are then read with it
  std::string goodCompanion = {};
  std::string_view badName = "part.cmp";

  bool isViscoelastic() const { return !badCompanion.empty() || badName.find('.') == badName.npos; }
  /// The options of `compparm check` that the example needs: "--molding GAIM ".
  std::string options() const;
};

/// In the order of CheckRule.
std::span<const RuleExample> ruleExamples();

/// The manual of all rules in Markdown.
std::string rulesMarkdown();

}  // namespace zeb
