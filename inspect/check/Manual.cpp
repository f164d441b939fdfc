#include "inspect/check/Manual.hpp"

#include <algorithm>

#include "inspect/check/Rules.hpp"

namespace zeb {

namespace {

std::string visible(char c) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  if (c == '\n' || (byte >= 0x20 && byte < 0x7F)) return std::string(1, c);
  if (c == '\r' || c == '\t') return c == '\r' ? "\\r" : "\\t";
  return {'\\', 'x', kHex[byte >> 4], kHex[byte & 15]};
}

// A file as the manual shows it: what an editor would not show is escaped, and long rows of one letter are cut.
std::string visible(std::string_view content) {
  constexpr std::size_t kLongestRun = 12;
  std::string text;
  for (std::size_t i = 0; i < content.size();) {
    const std::size_t end = std::min(content.find_first_not_of(content[i], i), content.size());
    const std::size_t run = end - i, kept = std::min(run, kLongestRun);
    for (std::size_t shown = 0; shown < kept; ++shown) text += visible(content[i]);
    if (run > kept) text += "...(" + std::to_string(run - kept) + " more)";
    i = end;
  }
  // Blanks at a line's end are the very fault.
  for (auto at = text.find(" \n"); at != text.npos; at = text.find(" \n", at)) {
    text.replace(at, 1, "\\x20");
    while (at > 0 && text[at - 1] == ' ') text.replace(--at, 1, "\\x20");
  }
  return text;
}

std::string codeBlock(std::string_view content) {
  std::string text = "```text\n" + visible(content);
  if (!text.ends_with('\n')) text += " (no line end)\n";
  return text + "```\n";
}

std::string fileText(std::string_view content, std::string_view companion) {
  if (companion.empty()) return codeBlock(content);
  return codeBlock(content) + "\nwith `part.vecmp`\n\n" + codeBlock(companion);
}

std::string finding(const CheckRule& rule) {
  const RuleExample& example = rule.example;
  std::string text = std::string(example.badCompanion.empty() ? example.badName : "part.vecmp");
  if (example.line > 0) text += ":" + std::to_string(example.line) + ":" + std::to_string(example.column);
  text += ": warning: " + std::string(example.message) + " [" + std::string(rule.id) + "]";
  return "`" + text + "`";
}

}  // namespace

std::string rulesMarkdown() {
  std::string text =
      "# Rules of `compparm check`\n\n"
      "Written by `compparm check --rules`. Do not edit: a test compares it with the rules, and each example is "
      "tested.\n\n"
      "The identifiers are stable; `--no-rule ID` switches a rule off, `-W ID` one on that is off by default. Each "
      "rule "
      "is\nshown with a file in which it is found and one in which nothing is. Bytes that an editor does not show are "
      "written\n`\\r`, `\\t` and `\\x00`.\n";
  for (const CheckRule* rule : checkRules()) {
    const RuleExample& example = rule->example;
    text += "\n## " + std::string(rule->id) + "\n\n" + std::string(rule->about) + " " + std::string(rule->why) + "\n\n";
    if (const std::string options = exampleOptions(*rule); !options.empty()) {
      text += "With `compparm check " + options + std::string(example.badName) + "`:\n\n";
    }
    text += "Bad:\n\n" + fileText(example.bad, example.badCompanion) + "\n" + finding(*rule) + "\n\nGood:\n\n" +
            fileText(example.good, example.goodCompanion);
  }
  return text;
}

}  // namespace zeb
