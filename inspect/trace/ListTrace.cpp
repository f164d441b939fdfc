#include "inspect/trace/ListTrace.hpp"

#include <algorithm>
#include <utility>

#include "engine/ParameterTable.hpp"
#include "inspect/set/Settings.hpp"

namespace zeb {

namespace {

template <class T>
const SharedArray<T>& arrayOf(const ListTrace::Member& member) {
  return *static_cast<const SharedArray<T>*>(member.address());
}

// A copy is asked, as a block keeps for good what it has handed out itself.
template <class T>
bool isReplaced(const SharedArray<T>& before, SharedArray<T> now) {
  return before.get() != now.get();
}

bool isArray(const Row& row) { return row.field.type == FieldType::kInts || row.field.type == FieldType::kDoubles; }

bool isUsed(const ListTrace::Line& line) { return line.used; }

}  // namespace

const void* ListTrace::Member::address() const { return row->field.locate(block); }

bool ListTrace::Member::isChanged() const {
  if (row->field.type == FieldType::kInts) return isReplaced(intsBefore, arrayOf<int>(*this));
  if (row->field.type == FieldType::kDoubles) return isReplaced(doublesBefore, arrayOf<double>(*this));
  return valueBefore != valueOf(*row, block);
}

const ListTrace::Line* ListTrace::Member::firstUsed() const {
  const auto found = std::find_if(lines.begin(), lines.end(), isUsed);
  return found == lines.end() ? nullptr : &*found;
}

const ListTrace::Line* ListTrace::Member::lastUsed() const {
  const auto found = std::find_if(lines.rbegin(), lines.rend(), isUsed);
  return found == lines.rend() ? nullptr : &*found;
}

void ListTrace::start(const KeyEvent& event) {
  m_announcing = &event.row;
  m_takenLine = 0;
  m_members.clear();
  for (const Row& row : event.section.rows) {
    if (!fills(event.row, row)) continue;
    Member member{&row, event.block, {}, {}, {}, {}};
    if (row.field.type == FieldType::kInts) {
      member.intsBefore = arrayOf<int>(member);
    } else if (row.field.type == FieldType::kDoubles) {
      member.doublesBefore = arrayOf<double>(member);
    } else {
      member.valueBefore = valueOf(row, event.block);
    }
    m_members.push_back(std::move(member));
  }
}

bool ListTrace::takes(const KeyEvent& event) {
  if (!isOpen() || !event.key.empty() || !fills(*m_announcing, event.row)) return false;
  m_takenLine = event.lineNumber;
  std::erase_if(m_members, [&](const Member& member) { return member.row == &event.row; });
  return true;
}

void ListTrace::line(int number, std::string_view text, bool used) {
  if (number == m_takenLine) return;
  for (Member& member : m_members) {
    if (!isArray(*member.row)) continue;
    if (member.lines.size() > kMostLines) {
      if (used) member.lines.back() = {number, std::string(text), used};
    } else {
      member.lines.push_back({number, std::string(text), used});
    }
  }
}

std::vector<ListTrace::Member> ListTrace::finish() {
  m_announcing = nullptr;
  return std::exchange(m_members, {});
}

}  // namespace zeb
