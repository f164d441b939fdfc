#include "inspect/Diagnostic.hpp"

#include <algorithm>
#include <tuple>

namespace zeb {

namespace {

bool continues(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

int characters(std::string_view text) {
  return static_cast<int>(text.size()) - static_cast<int>(std::count_if(text.begin(), text.end(), continues));
}

// What is shown of a long line: some characters before the place and some behind it.
constexpr std::size_t kShownBefore = 60;
constexpr std::size_t kShown = 120;

}  // namespace

DiagnosticList::DiagnosticList() : m_enabled(checkRules().size()), m_counts(checkRules().size()) {
  for (const RuleInfo& rule : checkRules()) enable(rule.rule, rule.byDefault);
}

void DiagnosticList::enable(CheckRule rule, bool on) { m_enabled[static_cast<std::size_t>(rule)] = on; }

bool DiagnosticList::wants(CheckRule rule) const {
  const auto index = static_cast<std::size_t>(rule);
  return m_enabled[index] && m_counts[index] < kMostPerRule;
}

void DiagnosticList::skip(CheckRule rule) {
  if (m_enabled[static_cast<std::size_t>(rule)]) ++m_dropped;
}

void DiagnosticList::add(CheckRule rule, int line, std::string_view text, std::size_t at, std::string message,
                         std::string hint) {
  if (!wants(rule)) return skip(rule);
  ++m_counts[static_cast<std::size_t>(rule)];
  at = std::min(at, text.size());
  std::size_t first = text.size() <= kShown || at < kShownBefore ? 0 : at - kShownBefore;
  while (first > 0 && continues(text[first])) --first;
  Diagnostic found;
  found.rule = rule;
  found.file = m_file;
  found.fileOrder = m_fileOrder;
  found.line = line;
  found.column = characters(text.substr(0, at)) + 1;
  found.textColumn = characters(text.substr(0, first)) + 1;
  found.text = text.substr(first, kShown);
  found.message = std::move(message);
  found.hint = hint.empty() ? std::string(info(rule).hint) : std::move(hint);
  m_all.push_back(std::move(found));
}

void DiagnosticList::startFile(std::string name) {
  m_file = std::move(name);
  ++m_fileOrder;
}

void DiagnosticList::sort() {
  std::stable_sort(m_all.begin(), m_all.end(), [](const Diagnostic& a, const Diagnostic& b) {
    return std::tie(a.fileOrder, a.line, a.column) < std::tie(b.fileOrder, b.line, b.column);
  });
}

}  // namespace zeb
