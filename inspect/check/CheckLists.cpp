// Lists behind a count, and the lines of positional sections.
#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/SectionEngine.hpp"
#include "inspect/check/CheckObserver.hpp"
#include "inspect/check/CheckText.hpp"

namespace zeb {

namespace {

// Scanned entries are three words, the '=' one of them.
bool isJoinedByEquals(std::string_view line) {
  FieldScanner words(line);
  std::string_view name, equals;
  return line.find('=') != line.npos && !(words.next(name) && words.next(equals) && equals == "=");
}

}  // namespace

void CheckObserver::startList(const KeyEvent& event) {
  endList();
  m_list = {};
  m_list.lines = event.row.lines;
  m_list.announced = m_line;
  m_list.place = here(m_text.find(event.key));
  if (event.row.count || m_list.lines.toEndOfFile) {
    m_list.expected = *static_cast<const int*>(event.row.field.locate(event.block));
  }
  // With any other value there is no list.
  m_list.announcesCount =
      !m_list.lines.countName.empty() && *static_cast<const int*>(event.row.field.locate(event.block)) == 1;
  m_list.open = true;
}

void CheckObserver::lineOfList(const Section& section, int /*lineNumber*/, std::string_view line, bool used) {
  m_judged = true;
  m_list.takesLines = true;
  const std::string list = "the list of line " + std::to_string(m_list.announced);
  const auto close = line.find(section.close);
  if (close != line.npos && !m_list.closed) {
    m_list.closed = true;
    if (m_list.lines.toEndOfFile && m_list.entries >= m_list.expected) return;
    add(CheckRule::kListConsumedClose, close,
        list + " takes this closing line as an entry; it has " + std::to_string(m_list.entries) + " of " +
            std::to_string(m_list.expected) + " entries");
    m_explained = m_list.complained = true;
    return;
  }
  if (used) return judgeEntry(section, line);
  if (m_list.lines.toEndOfFile && m_list.entries >= m_list.expected) {
    if (!trimmed(line).empty() && !isComment(line)) {
      add(CheckRule::kListTooLong, 0, list + " takes everything to the end of the file: this line is not read");
    }
    return;
  }
  if (m_list.announcesCount) {
    add(CheckRule::kListTooShort, 0,
        std::string(m_list.lines.countName) + " is expected in this line, right below line " +
            std::to_string(m_list.announced) + "; the list is not read");
  } else {
    const bool isJoined = m_list.lines.number == ListLines::Number::kScanned && isJoinedByEquals(line);
    add(CheckRule::kListTooShort, 0, list + " takes this line, but it is no usable entry",
        isJoined ? "put a blank on each side of '='" : "");
  }
  m_list.complained = true;
}

void CheckObserver::judgeEntry(const Section& section, std::string_view line) {
  const std::string list = "the list of line " + std::to_string(m_list.announced);
  if (!m_list.lines.countName.empty() && nameOf(line) == m_list.lines.countName) {
    int count = 0;
    extractInt(valueText(line), count);
    m_list.announcesCount = false;
    m_list.place = here(line.find(m_list.lines.countName));
    if (count < 0 || count > kLargestCount) {
      m_list.complained = true;
      return add(CheckRule::kCountRefused, line.find(m_list.lines.countName), countRefused());
    }
    m_list.expected = count;
    return judgeEntryTail(line);
  }
  ++m_list.entries;
  if (isTakenInPlaceOf(section, line)) {
    m_list.complained = true;
    return add(CheckRule::kListTooShort, line.find(nameOf(line)),
               list + " takes this line of " + std::string(nameOf(line)) + " as an entry");
  }
  judgeEntryTail(line);
  double weight = 0.0;
  if (!m_list.lines.sumsToOne || extractDouble(valueText(line), weight) == 0) return;
  m_list.sum += weight;
  ++m_list.weights;
  m_list.lastWeight = here(line.find(valueText(line)));
}

// Whether the line sets a key of the section in the eyes of whoever wrote it.
bool CheckObserver::isTakenInPlaceOf(const Section& section, std::string_view line) const {
  const std::string_view name = nameOf(line);
  return std::any_of(section.rows.begin(), section.rows.end(), [&](const Row& row) {
    return row.store == nullptr && !name.empty() && (row.key == name || row.otherKey == name);
  });
}

void CheckObserver::judgeEntryTail(std::string_view line) {
  const std::string_view value = valueText(line);
  int whole = 0;
  double real = 0.0;
  std::size_t used = 0;
  const bool isInt = m_list.lines.number == ListLines::Number::kInt;
  if (m_list.lines.number == ListLines::Number::kScanned) {
    FieldScanner scanner(value);
    scanner.next(real);
    used = value.size() - scanner.rest().size();
    judgeFinite(line.size() - value.size(), real, trimmed(value.substr(0, used)));
  } else {
    used = isInt ? extractInt(value, whole) : extractDouble(value, real);
  }
  const std::string_view rest = trimmed(value.substr(used));
  if (used == 0 || rest.empty()) return;
  const bool fraction = isInt && value.substr(used).starts_with('.');
  add(fraction ? CheckRule::kIntFraction : CheckRule::kTextAfterValue, line.size() - value.size() + used,
      "reading stops here: " + std::string(trimmed(value.substr(0, used))) + " is used, " + quoted(rest) +
          " is ignored");
}

void CheckObserver::judgeFinite(std::size_t at, double value, std::string_view text) {
  if (std::isfinite(value)) return;
  add(CheckRule::kNotFinite, at, quoted(text) + " is read as " + number(value) + " and used");
}

// --- Lists whose elements have keys of their own ---------------------------------------------------------------------

// A count that comes again makes its list anew.
std::string CheckObserver::forgetElements(const Row& count) {
  const auto lost = std::erase_if(
      m_setAt, [&](const auto& known) { return known.first->store != nullptr && fills(count, *known.first); });
  return lost == 0 ? "" : " and sets the elements from above back to 0";
}

void CheckObserver::judgeMissingElements() {
  if (m_section == nullptr) return;
  for (const Row& count : m_section->rows) {
    const auto announced = m_setAt.find(&count);
    if (announced == m_setAt.end()) continue;
    std::vector<std::string_view> missing;
    for (const Row& element : m_section->rows) {
      if (element.store == nullptr || !fills(count, element) || m_setAt.contains(&element)) continue;
      // Only what the list has room for can be stored; there is a 0 already.
      if (element.store(announced->second.block, 0.0)) missing.push_back(element.key);
    }
    if (missing.empty()) continue;
    m_found.add(
        CheckRule::kListTooShort, announced->second.place,
        std::string(missing.front()) + (missing.size() == 1 ? " is not set and stays 0"
                                                            : " and " + std::to_string(missing.size() - 1) +
                                                                  " more elements of the list are not set and stay 0"));
  }
}

void CheckObserver::endList() {
  if (!m_list.open) return;
  m_list.open = false;
  if (m_list.complained) return;
  if (m_list.announcesCount && !m_list.takesLines) {
    m_found.add(CheckRule::kListTooShort, m_list.place,
                "the list that the line announces is missing: " + std::string(m_list.lines.countName) +
                    " is expected in the next line");
  } else if (m_list.takesLines && m_list.entries < m_list.expected) {
    m_found.add(
        CheckRule::kListTooShort, m_list.place,
        "the list has " + std::to_string(m_list.entries) + " of " + std::to_string(m_list.expected) + " entries");
  } else if (m_list.weights > 0 && std::abs(m_list.sum - 1.0) > 1e-6) {
    m_found.add(CheckRule::kWeightsSum, m_list.lastWeight,
                "the weights sum to " + number(m_list.sum) + ", not to 1; the last one becomes one minus the others");
  }
}

// --- Positional lines ---------------------------------------------------------------------------------------------

void CheckObserver::linePositional(const Section& section, int /*lineNumber*/, int positionalLine, int converted,
                                   int expected, std::string_view tail) {
  const bool fileEnded = m_linesSinceOpening < positionalLine;
  m_judged = true;
  m_positional = &section;
  if (positionalLine == section.positional.lines) m_section = nullptr;
  const bool isCarriedOver = std::exchange(m_isCarriedOver, false);
  if (m_positionalShort) return;
  if (fileEnded || judgeShortPositional(section, positionalLine, expected == 0)) {
    m_positionalShort = true;
    if (!fileEnded) return;
    if (m_tagInFreeLine.place.line > 0) return reportShortPositional(m_tagInFreeLine, m_sectionInFreeLine);
    m_found.add(CheckRule::kPositionalTooShort, m_opening,
                std::string(section.open.empty() ? "the head" : section.open) + " has only " +
                    std::to_string(positionalLine - 1) + " of its lines; the file ends");
    return;
  }
  const std::string place =
      "line " + std::to_string(positionalLine) + " of " + std::string(section.open.empty() ? "the head" : section.open);
  const std::size_t tailAt = m_text.size() - std::min(tail.size(), m_text.size());
  const std::string_view rest = trimmed(tail);
  const std::size_t at = rest.empty() ? m_text.size() : m_text.find(rest, tailAt);
  if (converted < expected && m_tagInFreeLine.place.line > 0) {
    m_positionalShort = true;
    reportShortPositional(m_tagInFreeLine, m_sectionInFreeLine);
  } else if (converted < expected) {
    add(CheckRule::kPositionalFields, at,
        place + ": " + std::to_string(converted) + " of " + std::to_string(expected) + " fields can be read" +
            (rest.empty() ? "" : "; reading stops at " + quoted(rest)) +
            (isCarriedOver ? "; for the others those of the line above count" : ""));
  } else if (expected > 0 && !rest.empty()) {
    add(CheckRule::kPositionalExtra, at,
        quoted(rest) + " behind the " + std::to_string(expected) + " field" + (expected > 1 ? "s" : "") + " of " +
            place + " is ignored");
  }
}

void CheckObserver::judgeField(const KeyEvent& event, std::size_t at) {
  const FieldType type = event.row.field.type;
  m_isCarriedOver = m_isCarriedOver || trimmed(event.value).empty();
  if (type == FieldType::kDouble) {
    judgeFinite(at, *static_cast<const double*>(event.row.field.locate(event.block)), trimmed(event.value));
  }
  FieldScanner scanner(event.value);
  double typed = 0.0;
  const bool isNumber = type == FieldType::kDouble || type == FieldType::kInt;
  if (isNumber && scanner.next(typed)) judgeReplaced(event.section, event.row, event.block, typed, at);
}

// A 0 is the way to leave the value to the block.
void CheckObserver::fieldNotTaken(const KeyEvent& event) {
  FieldScanner scanner(event.value);
  double typed = 0.0;
  scanner.next(typed);
  if (typed == 0.0) return;
  add(CheckRule::kValueReplaced, offsetIn(event.line, trimmed(event.value)),
      number(typed) + " is not taken for " + std::string(event.row.field.member), std::string(event.row.doc));
}

// A tag among the lines: they are too few, and the section of the tag is lost with them. Lines without fields may hold
// any text, a bracketed word as well: there the lines behind it decide.
bool CheckObserver::judgeShortPositional(const Section& section, int positionalLine, bool isFree) {
  const Tag tag = tagOf(m_text, m_names->bracket());
  if (!tag || (isFree && m_names->sectionNamed(tag.name) == nullptr)) return false;
  Pending pending{here(m_text.find(tag.text)), std::string(section.open.empty() ? "the head" : section.open) +
                                                   " has only " + std::to_string(positionalLine - 1) +
                                                   " of its lines; this line is taken as its next one"};
  const std::string lostSection(tag.closes ? "" : tag.name);
  if (isFree) {
    m_tagInFreeLine = std::move(pending);
    m_sectionInFreeLine = lostSection;
    return false;
  }
  reportShortPositional(std::move(pending), lostSection);
  return true;
}

void CheckObserver::reportShortPositional(Pending pending, const std::string& lostSection) {
  if (!lostSection.empty()) m_unknownSection = lostSection;
  m_found.add(CheckRule::kPositionalTooShort, std::move(pending.place), std::move(pending.message));
}

}  // namespace zeb
