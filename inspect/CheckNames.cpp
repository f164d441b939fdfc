#include "inspect/CheckNames.hpp"

#include <algorithm>
#include <cctype>

#include "frame/CZEBCMPInternalTool.hpp"
#include "inspect/Inspection.hpp"

namespace zeb {

namespace {

char lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

// Edits from one to the other, letters compared without case; a difference in case alone weighs nothing.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed = diagonal + (lower(a[i - 1]) == lower(b[j - 1]) ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[b.size()];
}

std::size_t limitFor(std::string_view name) { return name.size() <= 3 ? 1 : std::max<std::size_t>(2, name.size() / 4); }

std::vector<std::string_view> nearest(std::string_view name, const std::vector<std::string_view>& known,
                                      std::size_t most) {
  std::vector<std::pair<std::size_t, std::string_view>> ranked;
  constexpr std::size_t kLongestName = 64;
  if (name.empty() || name.size() > kLongestName) return {};
  const std::size_t limit = limitFor(name);
  for (const std::string_view candidate : known) {
    if (candidate.size() > name.size() + limit || name.size() > candidate.size() + limit) continue;
    const std::size_t edits = distance(name, candidate);
    if (edits <= limit) ranked.emplace_back(edits, candidate);
  }
  std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string_view> names;
  for (std::size_t i = 0; i < ranked.size() && i < most; ++i) names.push_back(ranked[i].second);
  return names;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\v\f";
  const auto first = text.find_first_not_of(kBlank);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

bool isComment(std::string_view line) {
  line = trimmed(line);
  return line.starts_with('#') || line.starts_with(';') || line.starts_with('*') || line.starts_with("//");
}

std::string_view nameOf(std::string_view line) {
  const auto equals = line.find('=');
  const std::string_view name = trimmed(line.substr(0, equals));
  return equals != line.npos ? name : name.substr(0, name.find_first_of(" \t"));
}

std::string_view tagOf(std::string_view line, char bracket) {
  line = trimmed(line);
  if (!line.starts_with(bracket)) return {};
  const auto end = line.find(bracket == '<' ? '>' : ']');
  return end == line.npos ? std::string_view() : line.substr(1, end - 1);
}

std::span<const Section* const> namedSections() {
  static const std::vector<const Section*> kSections = [] {
    std::vector<const Section*> sections;
    for (const BlockEntry& block : allBlocks()) {
      for (const Section& section : block.table().sections) {
        if (section.open.starts_with('[')) sections.push_back(&section);
      }
    }
    return sections;
  }();
  return kSections;
}

const Section* sectionNamed(std::string_view name) {
  const auto sections = namedSections();
  const auto found =
      std::find_if(sections.begin(), sections.end(), [&](const Section* section) { return section->name == name; });
  return found == sections.end() ? nullptr : *found;
}

bool hasKey(const Section& section, std::string_view name) {
  return std::find(section.filter.keys.begin(), section.filter.keys.end(), name) != section.filter.keys.end();
}

bool isListWord(const Section& section, std::string_view name) {
  if (section.name == "MultiGate") return name == "Weightings";
  return section.name == "RTM" && (name == "NVentInlet" || name == "VentInletID");
}

std::vector<std::string_view> nearKeys(const Section& section, std::string_view name) {
  return nearest(name, {section.filter.keys.begin(), section.filter.keys.end()}, 3);
}

std::vector<std::string_view> nearSections(std::string_view name) {
  std::vector<std::string_view> names;
  for (const Section* section : namedSections()) names.push_back(section->name);
  return nearest(name, names, 2);
}

std::string sectionsWithKey(std::string_view name) {
  std::string text;
  for (const Section* section : namedSections()) {
    if (hasKey(*section, name) || isListWord(*section, name)) {
      text += (text.empty() ? "" : ", ") + std::string(section->open);
    }
  }
  return text;
}

bool isNear(std::string_view a, std::string_view b) { return distance(a, b) <= limitFor(a); }

std::string joined(const std::vector<std::string_view>& names) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? " or " : ", ";
    text += names[i];
  }
  return text;
}

}  // namespace zeb
