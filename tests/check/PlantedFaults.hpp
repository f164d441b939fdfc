// One fault planted into a file without any, and the lines on which it must be found.
#pragma once

#include <optional>
#include <set>
#include <string_view>

#include "tests/check/WellFormedFile.hpp"

namespace zebtest {

struct Planted {
  std::string content;
  std::set<int> lines;  // from 1; a finding on one of them is on the right line
};

class FaultPlanter {
 public:
  FaultPlanter(RandomText& random, const WellFormedFiles& files) : m_random(random), m_files(files) {}

  using Fault = std::optional<Planted> (FaultPlanter::*)(FileOfLines file);
  struct Kind {
    const char* name;
    Fault plant;             // nothing where the file has no place for the fault
    std::string_view rules;  // those that may tell it, separated by blanks
  };
  static const std::vector<Kind>& kinds() {
    using T = FaultPlanter;
    static const std::vector<Kind> kKinds = {
        {"misspelt key", &T::misspeltKey, "unknown-key inexact-key several-keys key-repeated"},
        {"wrong case of a key", &T::keyCase, "unknown-key inexact-key"},
        {"wrong case of an opening", &T::openingCase, "unknown-section"},
        {"wrong case of a closing", &T::closingCase, "wrong-closing-tag"},
        {"missing opening", &T::missingOpening, "close-without-open key-outside-section"},
        {"missing closing", &T::missingClosing, "unclosed-section"},
        {"closing of another section", &T::otherClosing, "wrong-closing-tag"},
        {"closing without its bracket", &T::brokenClosing, "wrong-closing-tag"},
        {"section inside another", &T::nestedSection, "section-inside-section"},
        {"repeated section", &T::repeatedSection, "section-repeated"},
        {"key out of any section", &T::keyOutside, "key-outside-section"},
        {"key of another section", &T::keyOfAnotherSection, "unknown-key inexact-key"},
        {"repeated key", &T::repeatedKey, "key-repeated"},
        {"commented-out key", &T::commentedKey, "comment-sets-key"},
        {"missing equals", &T::missingEquals, "missing-equals"},
        {"second equals", &T::secondEquals, "several-equals"},
        {"missing value", &T::missingValue, "unparsed-value"},
        {"value that is no number", &T::noNumber, "unparsed-value list-too-short not-finite"},
        {"text behind a number", &T::textBehind, "text-after-value"},
        {"fraction for an int", &T::intFraction, "int-fraction"},
        {"exponent for an int", &T::intExponent, "text-after-value"},
        {"number out of range", &T::outOfRange, "value-out-of-range"},
        {"closed gate", &T::closedGate, "key-gated"},
        {"key above its gate", &T::lateGate, "key-above-gate"},
        {"list one entry short", &T::shortList, "list-too-short list-consumed-close"},
        {"list one entry long", &T::longList, "list-too-long"},
        {"unusable list entry", &T::badEntry, "list-too-short"},
        {"weights that do not sum to one", &T::badWeights, "weights-sum"},
        {"field missing", &T::missingField, "positional-fields"},
        {"field too many", &T::extraField, "positional-extra"},
        {"field that is no number", &T::badField, "positional-fields"},
        {"positional line missing", &T::missingFields, "positional-fields positional-extra positional-too-short"},
        {"wrong version of a section", &T::badVersion, "positional-version"},
        {"wrong version of the head", &T::badHeadVersion, "version-unknown"},
        {"overlong line", &T::overlongLine, "line-too-long"},
        {"carriage return", &T::carriageReturn, "carriage-return"},
        {"NUL", &T::nulByte, "nul-byte"},
        {"tab before a text", &T::tabBeforeText, "tab-before-text"},
        {"blanks behind a text", &T::blanksBehindText, "trailing-blanks"},
        {"byte that is not UTF-8", &T::notUtf8, "not-utf8"},
        {"no final line end", &T::noFinalNewline, "no-final-newline"}};
    return kKinds;
  }

 private:
  using Lines = std::vector<FileLine>;

  template <class Test>
  std::optional<std::size_t> anyLine(const FileOfLines& file, Test test) {
    std::vector<std::size_t> fitting;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
      if (test(file.lines[i])) fitting.push_back(i);
    }
    if (fitting.empty()) return {};
    return m_random.pick(fitting);
  }
  static auto isKind(LineKind kind) {
    return [kind](const FileLine& line) { return line.kind == kind; };
  }
  static bool isKey(const FileLine& line) { return line.kind == LineKind::kKey && line.lookup != "presence"; }
  static bool isNumberKey(const FileLine& line) { return isKey(line) && line.isNumber(); }
  static bool isIntKey(const FileLine& line) { return isKey(line) && line.lookup == "int"; }
  static bool isTextKey(const FileLine& line) { return isKey(line) && line.lookup == "string"; }

  static Planted planted(const FileOfLines& file, std::set<int> lines) { return {file.text(), std::move(lines)}; }
  static Planted planted(const FileOfLines& file, std::size_t index) {
    return planted(file, std::set<int>{static_cast<int>(index) + 1});
  }

  // Changes the text of any line that fits.
  template <class Test, class Change>
  std::optional<Planted> changed(FileOfLines& file, Test test, Change change) {
    const auto at = anyLine(file, test);
    if (!at) return {};
    std::string& text = file.lines[*at].text;
    const std::string before = text;
    change(file.lines[*at]);
    if (text == before) return {};
    return planted(file, *at);
  }

  static void replaceKey(FileLine& line, const std::string& by) {
    line.text.replace(line.text.find(line.key), line.key.size(), by);
  }
  static void replaceValue(FileLine& line, const std::string& by) {
    const auto equals = line.text.find('=');
    const auto value = line.text.find_first_not_of(' ', equals + 1);
    line.text = line.text.substr(0, value) + by;
  }
  static std::string swappedCase(std::string text) {
    for (char& c : text) {
      const bool isLower = c >= 'a' && c <= 'z';
      if (isLower || (c >= 'A' && c <= 'Z')) c = static_cast<char>(c ^ 0x20);
    }
    return text;
  }
  static void insert(FileOfLines& file, std::size_t at, FileLine line) {
    file.lines.insert(file.lines.begin() + static_cast<std::ptrdiff_t>(at), std::move(line));
  }
  static void erase(FileOfLines& file, std::size_t at) {
    file.lines.erase(file.lines.begin() + static_cast<std::ptrdiff_t>(at));
  }
  // First and last line of the section that holds the line.
  static std::pair<std::size_t, std::size_t> extent(const FileOfLines& file, std::size_t at) {
    std::size_t first = at, last = at;
    while (file.lines[first].kind != LineKind::kOpening && file.lines[first].kind != LineKind::kVersion) --first;
    while (last + 1 < file.lines.size() && file.lines[last].kind != LineKind::kClosing) ++last;
    return {first, last};
  }
  static std::set<int> range(std::size_t first, std::size_t last) {
    std::set<int> lines;
    for (std::size_t i = first; i <= last; ++i) lines.insert(static_cast<int>(i) + 1);
    return lines;
  }
  const WellFormedFiles::Keyed* sectionOf(const FileOfLines& file, const FileLine& line) const {
    const auto& sections = m_files.keyed(file.isCmx);
    const auto found = sections.find(file.sections[static_cast<std::size_t>(line.section)]);
    return found == sections.end() ? nullptr : &found->second;
  }

  // --- Names

  std::string misspelt(std::string key) {
    static const std::string kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const std::size_t at = m_random.below(key.size());
    switch (m_random.below(4)) {
      case 0:
        return key.size() > 1 ? key.erase(at, 1) : key + key;
      case 1:
        return key.insert(at, 1, m_random.pick(kLetters));
      case 2:
        if (at + 1 < key.size()) std::swap(key[at], key[at + 1]);
        return key;
      default:
        key[at] = m_random.pick(kLetters);
        return key;
    }
  }
  std::optional<Planted> misspeltKey(FileOfLines file) {
    return changed(file, isKey, [&](FileLine& line) { replaceKey(line, misspelt(line.key)); });
  }
  std::optional<Planted> keyCase(FileOfLines file) {
    return changed(file, isKey, [&](FileLine& line) { replaceKey(line, swappedCase(line.key)); });
  }
  std::optional<Planted> openingCase(FileOfLines file) {
    return changed(file, isKind(LineKind::kOpening), [&](FileLine& line) { line.text = swappedCase(line.text); });
  }
  // The closing line of a section with keys.
  auto isKeyedClosing(const FileOfLines& file) const {
    return [this, &file](const FileLine& line) {
      return line.kind == LineKind::kClosing && sectionOf(file, line) != nullptr;
    };
  }
  std::optional<Planted> closingCase(FileOfLines file) {
    return changed(file, isKeyedClosing(file), [&](FileLine& line) { line.text = swappedCase(line.text); });
  }
  std::optional<Planted> brokenClosing(FileOfLines file) {
    return changed(file, isKeyedClosing(file), [&](FileLine& line) { line.text.pop_back(); });
  }

  // --- Sections

  std::optional<Planted> missingOpening(FileOfLines file) {
    const auto at = anyLine(file, isKind(LineKind::kOpening));
    if (!at) return {};
    const std::size_t last = extent(file, *at).second;
    erase(file, *at);
    return planted(file, range(*at, last - 1));
  }
  std::optional<Planted> missingClosing(FileOfLines file) {
    const auto at = anyLine(file, isKeyedClosing(file));
    if (!at) return {};
    const std::size_t first = extent(file, *at - 1).first;
    erase(file, *at);
    return planted(file, first);
  }
  std::optional<Planted> otherClosing(FileOfLines file) {
    const auto& sections = m_files.keyed(file.isCmx);
    auto other = sections.begin();
    std::advance(other, static_cast<std::ptrdiff_t>(m_random.below(sections.size())));
    const auto fits = [&](const FileLine& line) {
      return isKeyedClosing(file)(line) && line.text != other->second.close;
    };
    return changed(file, fits, [&](FileLine& line) { line.text = other->second.close; });
  }
  std::optional<Planted> nestedSection(FileOfLines file) {
    const auto at = anyLine(file, isKind(LineKind::kKey));
    if (!at || file.isCmx || file.lines[*at].section < 0) return {};
    const std::string& outer = file.sections[static_cast<std::size_t>(file.lines[*at].section)];
    const std::string inner = outer == "Outlet" ? "ShortShot" : "Outlet";
    insert(file, *at, {LineKind::kFree, "[/" + inner + "]"});
    insert(file, *at, {LineKind::kFree, "[" + inner + "]"});
    return planted(file, *at);
  }
  std::optional<Planted> repeatedSection(FileOfLines file) {
    const auto at = anyLine(file, isKind(LineKind::kOpening));
    if (!at) return {};
    const auto [first, last] = extent(file, *at);
    const Lines copy(file.lines.begin() + static_cast<std::ptrdiff_t>(first),
                     file.lines.begin() + static_cast<std::ptrdiff_t>(last) + 1);
    const std::size_t end = file.lines.size();
    file.lines.insert(file.lines.end(), copy.begin(), copy.end());
    return planted(file, end);
  }

  // --- Keys

  std::optional<Planted> keyOutside(FileOfLines file) {
    const auto at = anyLine(file, isKind(LineKind::kKey));
    const auto outside = anyLine(file, isKind(LineKind::kOpening));
    if (!at || !outside) return {};
    insert(file, *outside, file.lines[*at]);
    return planted(file, *outside);
  }
  std::optional<Planted> keyOfAnotherSection(FileOfLines file) {
    const auto at = anyLine(file, isKey);
    if (!at) return {};
    const auto& sections = m_files.keyed(file.isCmx);
    auto other = sections.begin();
    std::advance(other, static_cast<std::ptrdiff_t>(m_random.below(sections.size())));
    const WellFormedFiles::Key& key = m_random.pick(other->second.keys);
    for (const auto& own : sectionOf(file, file.lines[*at])->keys) {
      if (own.key == key.key) return {};
    }
    if (key.lookup == "presence") return {};
    insert(file, *at, {LineKind::kFree, key.key + " = 3"});
    return planted(file, *at);
  }
  std::optional<Planted> repeatedKey(FileOfLines file) {
    const auto at = anyLine(file, isNumberKey);
    if (!at) return {};
    FileLine copy = file.lines[*at];
    replaceValue(copy, "57");
    // Behind the lines of a list that the key may open.
    std::size_t behind = *at + 1;
    while (file.lines[behind].kind == LineKind::kEntry || file.lines[behind].kind == LineKind::kCount) ++behind;
    if (behind != *at + 1) return {};
    insert(file, behind, copy);
    return planted(file, behind);
  }
  std::optional<Planted> commentedKey(FileOfLines file) {
    return changed(file, isKey, [&](FileLine& line) { line.text = "# " + line.text; });
  }

  // --- Values

  static bool holdsNumber(const FileLine& line) {
    return line.isNumber() && (line.kind == LineKind::kKey || line.kind == LineKind::kEntry);
  }
  std::optional<Planted> missingEquals(FileOfLines file) {
    return changed(file, isKey, [&](FileLine& line) { line.text[line.text.find('=')] = ' '; });
  }
  std::optional<Planted> secondEquals(FileOfLines file) {
    return changed(file, isNumberKey, [&](FileLine& line) { line.text += m_random.oneIn(2) ? " = 3" : "=3"; });
  }
  std::optional<Planted> missingValue(FileOfLines file) {
    return changed(file, isNumberKey, [&](FileLine& line) { replaceValue(line, ""); });
  }
  std::optional<Planted> noNumber(FileOfLines file) {
    static const std::vector<std::string> kTexts = {"two", "-", ".", "nan", "O.5", "$x", "true", "l0", "e5", ",5"};
    return changed(file, holdsNumber, [&](FileLine& line) { replaceValue(line, m_random.pick(kTexts)); });
  }
  std::optional<Planted> textBehind(FileOfLines file) {
    static const std::vector<std::string> kTexts = {" mm", ",5", "x", " seconds", "_000", " 7", " // why"};
    return changed(file, holdsNumber, [&](FileLine& line) { line.text += m_random.pick(kTexts); });
  }
  std::optional<Planted> intFraction(FileOfLines file) {
    return changed(file, isIntKey, [&](FileLine& line) { line.text += m_random.oneIn(2) ? ".5" : ".001"; });
  }
  std::optional<Planted> intExponent(FileOfLines file) {
    return changed(file, isIntKey, [&](FileLine& line) { line.text += m_random.oneIn(2) ? "e5" : "E+02"; });
  }
  std::optional<Planted> outOfRange(FileOfLines file) {
    return changed(file, isNumberKey, [&](FileLine& line) {
      replaceValue(line, line.lookup == "int" ? (m_random.oneIn(2) ? "2147483648" : "-99999999999") : "1e999");
    });
  }

  // --- Gates and lists

  std::optional<Planted> closedGate(FileOfLines file) {
    const auto at = anyLine(file, isKind(LineKind::kGate));
    if (!at) return {};
    replaceValue(file.lines[*at], "0");
    return planted(file, range(*at + 1, extent(file, *at).second - 1));
  }
  std::optional<Planted> lateGate(FileOfLines file) {
    const auto at = anyLine(file, isKind(LineKind::kGate));
    if (!at) return {};
    const std::size_t last = extent(file, *at).second;
    insert(file, last, file.lines[*at]);
    erase(file, *at);
    return planted(file, range(*at, last - 2));
  }
  // The list's count and its entries.
  std::optional<std::pair<std::size_t, std::size_t>> anyList(const FileOfLines& file) {
    const auto at = anyLine(file, [](const FileLine& line) { return line.kind == LineKind::kCount; });
    if (!at) return {};
    std::size_t count = *at;
    while (count + 1 < file.lines.size() && file.lines[count + 1].kind == LineKind::kCount) ++count;
    std::size_t last = count;
    while (last + 1 < file.lines.size() && file.lines[last + 1].kind == LineKind::kEntry) ++last;
    if (last == count) return {};
    return std::pair(count, last);
  }
  std::optional<Planted> shortList(FileOfLines file) {
    const auto list = anyList(file);
    if (!list) return {};
    erase(file, list->second);
    // The next line is taken, or the list ends with its section.
    std::set<int> lines = range(list->second, list->second);
    lines.insert(static_cast<int>(list->first) + 1);
    lines.insert(static_cast<int>(list->first));
    return planted(file, lines);
  }
  std::optional<Planted> longList(FileOfLines file) {
    const auto list = anyList(file);
    if (!list) return {};
    insert(file, list->second + 1, file.lines[list->second]);
    return planted(file, list->second + 1);
  }
  std::optional<Planted> badEntry(FileOfLines file) {
    const auto list = anyList(file);
    if (!list) return {};
    const std::size_t at = list->first + 1 + m_random.below(list->second - list->first);
    file.lines[at].text = m_random.oneIn(2) ? "" : "# nothing";
    return planted(file, at);
  }
  std::optional<Planted> badWeights(FileOfLines file) {
    const auto isWeight = [](const FileLine& line) { return line.text.find("Weightings") == 0; };
    const auto at = anyLine(file, isWeight);
    if (!at) return {};
    replaceValue(file.lines[*at], "0.7");
    std::size_t first = *at, last = *at;
    while (isWeight(file.lines[first - 1])) --first;
    while (isWeight(file.lines[last + 1])) ++last;
    return planted(file, range(first, last));
  }

  // --- Positional lines

  std::optional<std::size_t> anyFields(const FileOfLines& file) {
    const auto at = anyLine(file, isKind(LineKind::kFields));
    // Of the versions of positional sections another fault is made.
    return at && file.lines[*at - 1].kind != LineKind::kOpening ? at : std::nullopt;
  }
  template <class Change>
  std::optional<Planted> changedFields(FileOfLines& file, Change change) {
    const auto at = anyFields(file);
    if (!at) return {};
    change(file.lines[*at].text);
    return planted(file, *at);
  }
  std::optional<Planted> missingField(FileOfLines file) {
    return changedFields(file, [](std::string& text) {
      const auto blank = text.find_last_of(' ');
      text.erase(blank == text.npos ? 0 : blank);
    });
  }
  std::optional<Planted> extraField(FileOfLines file) {
    return changedFields(file, [](std::string& text) { text += " 7"; });
  }
  std::optional<Planted> badField(FileOfLines file) {
    return changedFields(file, [&](std::string& text) {
      text.replace(text.find_last_of(' ') + 1, text.npos, m_random.oneIn(2) ? "x" : "on");
    });
  }
  // All lines behind it move up: from there on any of them may show it.
  std::optional<Planted> missingFields(FileOfLines file) {
    const auto at = anyFields(file);
    if (!at) return {};
    std::size_t last = *at;
    while (last < file.lines.size() &&
           (file.lines[last].kind == LineKind::kFields || file.lines[last].kind == LineKind::kFree))
      ++last;
    std::set<int> lines = range(*at, std::min(last, file.lines.size() - 1));
    if (last >= file.lines.size()) lines.insert(static_cast<int>(extent(file, *at).first) + 1);
    erase(file, *at);
    // Noise may stand between the head and the next section.
    while (last < file.lines.size() && file.lines[last - 1].kind == LineKind::kOutside) {
      lines.insert(static_cast<int>(++last));
    }
    return planted(file, lines);
  }
  std::optional<Planted> badVersion(FileOfLines file) {
    const auto at = anyLine(file, isKind(LineKind::kFields));
    if (!at || file.lines[*at - 1].kind != LineKind::kOpening) return {};
    file.lines[*at].text = "1001";
    return planted(file, *at);
  }
  std::optional<Planted> badHeadVersion(FileOfLines file) {
    return changed(file, isKind(LineKind::kVersion),
                   [&](FileLine& line) { line.text = m_random.oneIn(2) ? "[VER] 1032" : "[VER]1023"; });
  }

  // --- Bytes

  static bool isAny(const FileLine& /*line*/) { return true; }
  static bool isNotEmpty(const FileLine& line) { return !line.text.empty(); }
  std::optional<Planted> overlongLine(FileOfLines file) {
    return changed(file, isAny, [&](FileLine& line) { line.text += std::string(300, ' '); });
  }
  std::optional<Planted> carriageReturn(FileOfLines file) {
    return changed(file, isAny, [&](FileLine& line) {
      line.text.insert(m_random.oneIn(2) ? line.text.size() : m_random.below(line.text.size() + 1), 1, '\r');
    });
  }
  std::optional<Planted> nulByte(FileOfLines file) {
    return changed(file, isNotEmpty,
                   [&](FileLine& line) { line.text.insert(m_random.below(line.text.size()), 1, '\0'); });
  }
  std::optional<Planted> tabBeforeText(FileOfLines file) {
    return changed(file, isTextKey, [&](FileLine& line) { line.text.insert(line.text.find('=') + 1, 1, '\t'); });
  }
  std::optional<Planted> blanksBehindText(FileOfLines file) {
    return changed(file, isTextKey, [&](FileLine& line) { line.text += m_random.oneIn(2) ? "  " : "\t"; });
  }
  std::optional<Planted> notUtf8(FileOfLines file) {
    static const std::vector<std::string> kBytes = {"\xFC", "\xC3", "\x80", "\xC0\xAF", "\xED\xA0\x80", "\xFF"};
    return changed(file, isAny, [&](FileLine& line) {
      line.text.insert(m_random.below(line.text.size() + 1), m_random.pick(kBytes));
    });
  }
  std::optional<Planted> noFinalNewline(FileOfLines file) {
    if (file.lines.back().text.empty()) return {};
    Planted result = planted(file, file.lines.size() - 1);
    result.content.pop_back();
    return result;
  }

  RandomText& m_random;
  const WellFormedFiles& m_files;
};

}  // namespace zebtest
