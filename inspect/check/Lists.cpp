// Lists behind a count, and lists whose elements have keys of their own.
#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/ValueText.hpp"
#include "inspect/check/Checker.hpp"
#include "inspect/check/Wording.hpp"

namespace zeb {

const CheckRule kNotFinite{
    "not-finite",
    "A field or entry is read as infinite or as not a number.",
    "write a number in plain decimal form",
    "Positional fields and the moments and coefficients of a CMX file are read by the C library's rules, "
    "to which \"nan\", \"inf\" and numbers too large are numbers.",
    {"[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 nan\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n",
     6, 5, "'nan' is read as nan and used",
     "[3DCoolingChannel]\n1002\n0\n10\n10\n0.5 0.6\n0.5 0.5\n1 10\n"
     "[/3DCoolingChannel]\n"}};

const CheckRule kCountRefused{
    "count-refused",
    "A list's count is outside of its range; 0 is used.",
    "0 to 1000000 are valid",
    "A list has 0 to 1,000,000 entries. Any other count is stored as 0, and the list is dropped.",
    {"[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = -1\n"
     "[/MultiGate]\n",
     3, 23, "the count is outside of 0 to 1000000; 0 is used",
     "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 0\n"
     "[/MultiGate]\n"}};

const CheckRule kPointBeyondCount{
    "point-beyond-count",
    "A list has no such element.",
    "raise the count, above this line",
    "An element of a list is stored only when the count, in a line above it, is large enough.",
    {"[UNFSetting]\nFillType = 2\nnDispenserPoint = 1\nPoint_x2 = 1.5\n"
     "[/UNFSetting]\n",
     4, 1, "Point_x2 is beyond the list's count and is not stored",
     "[UNFSetting]\nFillType = 2\nnDispenserPoint = 1\nPoint_x1 = 1.5\n"
     "Point_y1 = 0.5\n[/UNFSetting]\n"}};

const CheckRule kListTooShort{
    "list-too-short",
    "A list has fewer usable entries than its count says.",
    "make count and entries agree",
    "A list takes as many lines as its count says, whatever they hold: a key among them is no longer "
    "a key.",
    {"[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
     "Weightings = 0.4\nDebug = 1\nWeightings = 0.6\n[/MultiGate]\n",
     5, 1, "the list of line 3 takes this line, but it is no usable entry",
     "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
     "Weightings = 0.4\nWeightings = 0.6\nDebug = 1\n[/MultiGate]\n"}};

const CheckRule kListTooLong{"list-too-long",
                             "An entry stands behind the end of its list, or without a list.",
                             "make count and entries agree",
                             "Entries behind the last one that the count announces are ignored.",
                             {"[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
                              "Weightings = 0.4\nWeightings = 0.6\nWeightings = 0.1\n[/MultiGate]\n",
                              6, 1, "this entry belongs to no list, or stands behind the end of its list",
                              "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
                              "Weightings = 0.4\nWeightings = 0.6\n[/MultiGate]\n"}};

const CheckRule kListConsumedClose{
    "list-consumed-close",
    "A list takes the section's closing line as an entry.",
    "make count and entries agree",
    "A list that is one entry short takes the closing line of its section as the last one. The section "
    "then runs on to the end of the file.",
    {"[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
     "Weightings = 1\n[/MultiGate]\n",
     5, 1, "the list of line 3 takes this closing line as an entry; it has 1 of 2 entries",
     "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
     "Weightings = 0.4\nWeightings = 0.6\n[/MultiGate]\n"}};

const CheckRule kWeightsSum{"weights-sum",
                            "The weights of a list do not sum to one.",
                            "the last weight is always one minus the others",
                            "The last weight of the file is not used: the reader makes it one minus the others.",
                            {"[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
                             "Weightings = 0.3\nWeightings = 0.3\n[/MultiGate]\n",
                             5, 14, "the weights sum to 0.6, not to 1; the last one becomes one minus the others",
                             "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n"
                             "Weightings = 0.3\nWeightings = 0.7\n[/MultiGate]\n"}};

namespace {

// Scanned entries are three words, the '=' one of them.
bool isJoinedByEquals(std::string_view line) {
  FieldScanner words(line);
  std::string_view name, equals;
  return line.find('=') != line.npos && !(words.next(name) && words.next(equals) && equals == "=");
}

}  // namespace

// Lists begin and end among the keys of a line.
void Checker::judgeLists() {
  const auto open = [&](const Hit& hit) {
    if (hit.row->opensList() && hit.outcome == KeyOutcome::kStored) startList(hit);
  };
  m_line->inOrder(open, [&](const ListTaken&) { endList(); });
}

void Checker::startList(const Hit& hit) {
  endList();
  m_list = {};
  m_list.lines = hit.row->list;
  m_list.announced = m_line->number;
  m_list.place = here(hit.keyAt);
  const int value = hit.row->field.type == FieldType::kInt ? hit.row->field.in<int>(hit.block) : 0;
  if (hit.row->count != Count::kNo) m_list.expected = value;
  // With any other value there is no list.
  m_list.announcesCount = !m_list.lines.countName.empty() && value == 1;
  m_list.open = true;
}

void Checker::judgeTaken() {
  m_list.takesLines = true;
  const std::string list = "the list of line " + std::to_string(m_list.announced);
  const auto close = text().find(m_section->close);
  if (close != text().npos && !m_list.closed) {
    m_list.closed = true;
    if (m_list.lines.toEndOfFile && m_list.entries >= m_list.expected) return;
    add(kListConsumedClose, close,
        list + " takes this closing line as an entry; it has " + std::to_string(m_list.entries) + " of " +
            std::to_string(m_list.expected) + " entries");
    m_explained = m_list.complained = true;
    return;
  }
  m_line->entry.used ? judgeEntry() : judgeUnused();
}

void Checker::judgeUnused() {
  const std::string list = "the list of line " + std::to_string(m_list.announced);
  if (m_list.lines.toEndOfFile && m_list.entries >= m_list.expected) {
    if (!trimmed(text()).empty() && !isComment(text())) {
      add(kListTooLong, 0, list + " takes everything to the end of the file: this line is not read");
    }
    return;
  }
  if (m_list.announcesCount) {
    add(kListTooShort, 0,
        std::string(m_list.lines.countName) + " is expected in this line, right below line " +
            std::to_string(m_list.announced) + "; the list is not read");
  } else {
    add(kListTooShort, 0, list + " takes this line, but it is no usable entry",
        m_list.lines.isScanned() && isJoinedByEquals(text()) ? "put a blank on each side of '='" : "");
  }
  m_list.complained = true;
}

void Checker::judgeCount() {
  m_list.announcesCount = false;
  const auto at = text().find(m_list.lines.countName);
  m_list.place = here(at);
  const int count = static_cast<int>(m_line->entry.number);
  if (count < 0 || count > kLargestCount) {
    m_list.complained = true;
    return add(kCountRefused, at, countRefused());
  }
  m_list.expected = count;
  judgeEntryTail();
}

void Checker::judgeEntry() {
  if (m_line->entry.isCount && nameOf(text()) == m_list.lines.countName) return judgeCount();
  ++m_list.entries;
  if (isTakenInPlaceOf()) {
    m_list.complained = true;
    return add(kListTooShort, text().find(nameOf(text())),
               "the list of line " + std::to_string(m_list.announced) + " takes this line of " +
                   std::string(nameOf(text())) + " as an entry");
  }
  judgeEntryTail();
  if (!m_list.lines.lastIsRest) return;
  m_list.sum += m_line->entry.number;
  ++m_list.weights;
  m_list.lastWeight = here(m_line->entry.valueAt);
}

// Whether the line sets a key of the section in the eyes of whoever wrote it.
bool Checker::isTakenInPlaceOf() const {
  const std::string_view name = nameOf(text());
  return std::any_of(m_section->rows.begin(), m_section->rows.end(), [&](const Row& row) {
    return !row.isElement() && !name.empty() && (row.key == name || row.otherKey == name);
  });
}

void Checker::judgeEntryTail() {
  const TakenEntry& entry = m_line->entry;
  const std::string_view used = text().substr(entry.valueAt, entry.usedEnd - entry.valueAt);
  const std::string_view left = text().substr(entry.usedEnd), rest = trimmed(left);
  if (m_list.lines.isScanned()) judgeFinite(entry.valueAt, entry.number, trimmed(used));
  if (rest.empty()) return;
  const bool fraction = m_list.lines.array.type == FieldType::kInts && left.starts_with('.');
  add(fraction ? kIntFraction : kTextAfterValue, entry.usedEnd,
      "reading stops here: " + std::string(trimmed(used)) + " is used, " + quoted(rest) + " is ignored");
}

void Checker::judgeFinite(std::size_t at, double value, std::string_view valueText) {
  if (std::isfinite(value)) return;
  add(kNotFinite, at, quoted(valueText) + " is read as " + number(value) + " and used");
}

void Checker::endList() {
  if (!m_list.open) return;
  m_list.open = false;
  if (m_list.complained) return;
  if (m_list.announcesCount && !m_list.takesLines) {
    m_found.add(kListTooShort, m_list.place,
                "the list that the line announces is missing: " + std::string(m_list.lines.countName) +
                    " is expected in the next line");
  } else if (m_list.takesLines && m_list.entries < m_list.expected) {
    m_found.add(
        kListTooShort, m_list.place,
        "the list has " + std::to_string(m_list.entries) + " of " + std::to_string(m_list.expected) + " entries");
  } else if (m_list.weights > 0 && std::abs(m_list.sum - 1.0) > 1e-6) {
    m_found.add(kWeightsSum, m_list.lastWeight,
                "the weights sum to " + number(m_list.sum) + ", not to 1; the last one becomes one minus the others");
  }
}

// --- Lists whose elements have keys of their own ---------------------------------------------------------------------

// Entries may stay in the file while a count that is not above 0 says that none is wanted.
bool Checker::isOfSwitchedOffList(const Hit& hit) const {
  return std::any_of(m_setAt.begin(), m_setAt.end(), [&](const auto& known) {
    const Row& row = *known.first;
    return row.list.toEndOfFile && fills(row, *hit.row) && row.field.in<int>(hit.block) <= 0;
  });
}

// A count that comes again makes its list anew.
std::string Checker::forgetElements(const Row& count) {
  const auto lost =
      std::erase_if(m_setAt, [&](const auto& known) { return known.first->isElement() && fills(count, *known.first); });
  return lost == 0 ? "" : " and sets the elements from above back to 0";
}

void Checker::judgeMissingElements() {
  if (m_section == nullptr) return;
  for (const Row& count : m_section->rows) {
    const auto announced = m_setAt.find(&count);
    if (announced == m_setAt.end()) continue;
    std::vector<std::string_view> missing;
    for (const Row& element : m_section->rows) {
      if (!element.isElement() || !fills(count, element) || m_setAt.contains(&element)) continue;
      // Only what the list has room for can be stored.
      const auto& array = element.field.in<SharedArray<double>>(announced->second.block);
      if (element.element != kNoElement && element.element < array.size()) missing.push_back(element.key);
    }
    if (missing.empty()) continue;
    m_found.add(
        kListTooShort, announced->second.place,
        std::string(missing.front()) + (missing.size() == 1 ? " is not set and stays 0"
                                                            : " and " + std::to_string(missing.size() - 1) +
                                                                  " more elements of the list are not set and stay 0"));
  }
}

}  // namespace zeb
