#include "inspect/check/Diagnostic.hpp"

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

Place placeIn(int line, std::string_view text, std::size_t at) {
  at = std::min(at, text.size());
  while (at > 0 && at < text.size() && continues(text[at])) --at;
  std::size_t first = text.size() <= kShown || at < kShownBefore ? 0 : at - kShownBefore;
  while (first > 0 && continues(text[first])) --first;
  std::size_t end = std::min(text.size(), first + kShown);
  while (end > first && end < text.size() && continues(text[end])) --end;
  return {line, characters(text.substr(0, at)) + 1, std::string(text.substr(first, end - first)),
          characters(text.substr(0, first)) + 1};
}

DiagnosticList::DiagnosticList() : m_enabled(checkRules().size()), m_counts(checkRules().size()) {
  for (const CheckRule* rule : checkRules()) enable(*rule, rule->byDefault);
}

void DiagnosticList::enable(const CheckRule& rule, bool on) { m_enabled[indexOf(rule)] = on; }

bool DiagnosticList::wants(const CheckRule& rule) const {
  const auto index = indexOf(rule);
  return m_enabled[index] && m_counts[index] < kMostPerRule;
}

void DiagnosticList::skip(const CheckRule& rule) {
  if (m_enabled[indexOf(rule)]) ++m_dropped;
}

void DiagnosticList::add(const CheckRule& rule, Place place, std::string message, std::string hint) {
  if (!wants(rule)) return skip(rule);
  ++m_counts[indexOf(rule)];
  const std::string file = m_file < 0 ? std::string() : m_files[static_cast<std::size_t>(m_file)];
  if (hint.empty()) hint = rule.hint;
  m_all.push_back({&rule, file, m_file, std::move(place), std::move(message), std::move(hint)});
}

void DiagnosticList::add(const CheckRule& rule, int line, std::string_view text, std::size_t at, std::string message,
                         std::string hint) {
  if (!wants(rule)) return skip(rule);
  add(rule, placeIn(line, text, at), std::move(message), std::move(hint));
}

int DiagnosticList::startFile(std::string name) {
  m_file = static_cast<int>(m_files.size());
  m_files.push_back(std::move(name));
  std::fill(m_counts.begin(), m_counts.end(), 0);
  return m_file;
}

void DiagnosticList::sort() {
  std::stable_sort(m_all.begin(), m_all.end(), [](const Diagnostic& a, const Diagnostic& b) {
    return std::tie(a.fileOrder, a.place.line, a.place.column) < std::tie(b.fileOrder, b.place.line, b.place.column);
  });
}

}  // namespace zeb
