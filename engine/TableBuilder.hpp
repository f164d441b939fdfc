// Builds sections and block tables from rows at compile time and refuses what is not whole.
#pragma once

#include <algorithm>
#include <array>

#include "engine/BlockAccess.h"
#include "engine/BlockFunctions.hpp"
#include "engine/FixedText.hpp"
#include "engine/ParameterTable.hpp"
#include "engine/RowCheck.hpp"

/// The field of a row whose getter is called as the member without its "m_", in a table where T is the block.
#define ZEB_FIELD(getter) .field = zeb::field<&T::m_##getter, &T::getter>()

namespace zeb {

/// An order of keys or members that differs from the order of declaration.
template <std::size_t Count>
using Order = std::array<std::string_view, Count>;

/// Stands where a table has no order of its own.
inline constexpr Order<0> kDeclarationOrder{};

/// Which fields of a positional section are parsed and thrown away, and the section's own rules.
struct PositionalLayout {
  std::uint8_t lines = 0;
  bool versioned = false;
  std::uint32_t absentIsZero = 0;
  std::span<const Slot> discarded = {};
  int headVersion = 0;
};

namespace detail {

template <FixedText Name, char Open, char Close>
struct Tags {
  static constexpr auto build(std::string_view middle) {
    std::array<char, Name.view().size() + 3> text{};
    auto at = text.begin();
    *at++ = Open;
    at = std::copy(middle.begin(), middle.end(), at);
    at = std::copy_n(Name.text, Name.view().size(), at);
    *at = Close;
    return text;
  }
  static constexpr auto kOpenText = build("");
  static constexpr auto kCloseText = build("/");
  static constexpr std::string_view kOpen{kOpenText.data(), kOpenText.size() - 1};
  static constexpr std::string_view kClose{kCloseText.data(), kCloseText.size()};
};

/// The keys of a section in the order in which the reader tests them, with their rows and their filter.
template <const auto& Rows, const auto& KeyOrder, class SectionTags>
struct Reading {
  static constexpr std::size_t countKeys() {
    std::size_t count = 0;
    for (const Row& row : Rows) count += (row.key.empty() ? 0u : 1u) + (row.otherKey.empty() ? 0u : 1u);
    return count;
  }
  static constexpr std::size_t kCount = countKeys();

  struct Keys {
    std::array<std::string_view, kCount> key{};
    std::array<std::uint8_t, kCount> row{};
    std::size_t count = 0;

    constexpr void add(std::string_view text, std::size_t rowNumber) {
      if (text.empty()) return;
      key[count] = text;
      row[count++] = static_cast<std::uint8_t>(rowNumber);
    }
  };

  static constexpr Keys collect() {
    Keys keys;
    if constexpr (KeyOrder.size() == 0) {
      for (std::size_t r = 0; r < std::size(Rows); ++r) {
        keys.add(Rows[r].key, r);
        keys.add(Rows[r].otherKey, r);
      }
    } else {
      for (const std::string_view key : KeyOrder) {
        const std::size_t before = keys.count;
        for (std::size_t r = 0; r < std::size(Rows); ++r) {
          if (Rows[r].key != key) continue;
          keys.add(Rows[r].key, r);
          keys.add(Rows[r].otherKey, r);
        }
        if (keys.count == before) throw "the reading order names a key that no row has";
      }
      if (keys.count != kCount) throw "the reading order leaves a key out or names one twice";
    }
    return keys;
  }
  static constexpr Keys kKeys = collect();

  static constexpr std::size_t shortest() {
    std::size_t length = SectionTags::kClose.size();
    for (const auto key : kKeys.key) length = std::min(length, key.size());
    return length;
  }
  // The closing tag is one more text to look for, so that no line is searched twice.
  static constexpr auto withClosingTag() {
    std::array<std::string_view, kCount + 1> texts{};
    std::copy(kKeys.key.begin(), kKeys.key.end(), texts.begin());
    texts.back() = SectionTags::kClose;
    return texts;
  }
  static constexpr KeyFilterTables<kCount + 1, shortest()> kFilter{withClosingTag()};

  // -1: no key of the section is such a one.
  static constexpr int theOnly(bool (*isIt)(const Row&)) {
    int found = -1;
    for (std::size_t k = 0; k < kCount; ++k) {
      if (!isIt(Rows[kKeys.row[k]])) continue;
      if (found >= 0) throw "a section has at most one of these";
      found = static_cast<int>(k);
    }
    return found;
  }
  static constexpr int gate() {
    return theOnly([](const Row& row) { return row.gateBelow != kNoGate; });
  }
  static constexpr int roomOnly() {
    return theOnly([](const Row& row) { return row.list.isRoomOnly(); });
  }

  static constexpr auto collectPlainFields() {
    std::array<Field, kCount> plain{};
    for (std::size_t k = 0; k < kCount; ++k) {
      const Row& row = Rows[kKeys.row[k]];
      const bool gated = gate() >= 0 && static_cast<int>(k) > gate();
      if (row.isPlainNumber() && !gated) plain[k] = row.field;
    }
    return plain;
  }
  static constexpr ExactKeysTable<kCount> kExactKeys{kKeys.key, SectionTags::kClose, collectPlainFields()};
};

template <const auto& Rows, const auto& Layout>
struct Positions {
  static constexpr std::size_t countSlots() {
    std::size_t count = Layout.discarded.size();
    for (const Row& row : Rows) {
      for (const Position at : row.at) count += at.line > 0 ? 1u : 0u;
    }
    return count;
  }
  static constexpr auto collect() {
    std::array<Slot, countSlots()> slots{};
    std::size_t count = 0;
    for (const Row& row : Rows) {
      for (const Position at : row.at) {
        if (at.line > 0) slots[count++] = {at, row.field.type, &row};
      }
    }
    for (const Slot& slot : Layout.discarded) slots[count++] = slot;
    const auto number = [](const Slot& slot) { return slot.at.line * 256 + slot.at.field; };
    std::sort(slots.begin(), slots.end(), [&](const Slot& a, const Slot& b) { return number(a) < number(b); });
    int line = 0, field = 0;
    for (const Slot& slot : slots) {
      field = slot.at.line == line ? field + 1 : 1;
      line = slot.at.line;
      if (slot.at.field != field || line > Layout.lines)
        throw "a positional line has a gap or two members in one place";
    }
    return slots;
  }
  static constexpr auto kSlots = collect();
};

template <const auto& Sections, const auto& MemberOrder>
struct Dump {
  static constexpr std::size_t countLabels() {
    std::size_t count = 0;
    for (const Section& section : Sections) {
      for (const Row& row : section.rows) count += row.isDumped() ? 1u : 0u;
    }
    return count;
  }
  static constexpr auto collect() {
    std::array<const Row*, countLabels()> rows{};
    std::size_t count = 0;
    for (const Section& section : Sections) {
      for (const Row& row : section.rows) {
        if (row.isDumped()) rows[count++] = &row;
      }
    }
    if constexpr (MemberOrder.size() > 0) {
      if (MemberOrder.size() != count) throw "the dump order leaves a dumped member out or names one twice";
      for (std::size_t place = 0; place < count; ++place) {
        const auto isNamed = [&](const Row* row) { return row->field.member == MemberOrder[place]; };
        const auto found = std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(place), rows.end(), isNamed);
        if (found == rows.end()) throw "the dump order names a member that is not dumped";
        std::rotate(rows.begin() + static_cast<std::ptrdiff_t>(place), found, found + 1);
      }
    }
    return rows;
  }
  static constexpr auto kRows = collect();
};

template <const auto& Sections, const auto& NameOrder>
struct Dispatch {
  static constexpr auto isOpened = [](const Section& section) { return !section.open.empty(); };

  static constexpr auto collect() {
    std::array<const Section*, std::ranges::count_if(Sections, isOpened)> sections{};
    auto next = sections.begin();
    for (const Section& section : Sections) {
      if (isOpened(section)) *next++ = &section;
    }
    if constexpr (NameOrder.size() > 0) {
      if (NameOrder.size() != sections.size()) throw "the dispatch order leaves a section out or names one twice";
      next = sections.begin();
      for (const std::string_view name : NameOrder) {
        const auto isNamed = [&](const Section* section) { return section->name == name; };
        const auto found = std::find_if(next, sections.end(), isNamed);
        if (found == sections.end()) throw "the dispatch order names no section, or one twice";
        std::rotate(next++, found, found + 1);
      }
    }
    return sections;
  }
  static constexpr auto kSections = collect();
};

template <class Block>
constexpr std::string_view className() {
  std::string_view text = __PRETTY_FUNCTION__;
  text.remove_prefix(text.find("Block = ") + 8);
  return text.substr(0, text.find_first_of(";]"));
}

template <FixedText Name, FixedText CloseName, char Open, char Close, const auto& Rows, const auto& KeyOrder>
constexpr Section keyed() {
  static_assert(areRowsRight<Rows>());
  using Read = Reading<Rows, KeyOrder, Tags<CloseName, Open, Close>>;
  static_assert(Read::kFilter.findsEveryText());
  Section section;
  section.name = Tags<Name, Open, Close>::kOpen.substr(1, Name.view().size());
  section.open = Tags<Name, Open, Close>::kOpen;
  section.close = Tags<CloseName, Open, Close>::kClose;
  section.rows = Rows;
  section.readingOrder = Read::kKeys.row;
  section.filter = Read::kFilter.view();
  section.gate = Read::gate();
  section.roomOnly = Read::roomOnly();
  section.exactKeys = Read::kExactKeys.view();
  return section;
}

}  // namespace detail

/// A section "[Name]" of keyed lines; `KeyOrder` is given where the reader tests the keys in another order than
/// declared.
template <FixedText Name, const auto& Rows, const auto& KeyOrder = kDeclarationOrder, FixedText CloseName = Name>
constexpr Section keyedSection() {
  return detail::keyed<Name, CloseName, '[', ']', Rows, KeyOrder>();
}

/// A block "<NAME>" of keyed lines.
template <FixedText Name, const auto& Rows, const auto& KeyOrder = kDeclarationOrder>
constexpr Section taggedSection() {
  return detail::keyed<Name, Name, '<', '>', Rows, KeyOrder>();
}

/// A section "[Name]" of a fixed number of lines whose fields are known by their position.
template <FixedText Name, const auto& Rows, const auto& Layout>
constexpr Section positionalSection() {
  static_assert(detail::areRowsRight<Rows>());
  Section section;
  section.name = detail::Tags<Name, '[', ']'>::kOpen.substr(1, Name.view().size());
  section.open = detail::Tags<Name, '[', ']'>::kOpen;
  section.close = detail::Tags<Name, '[', ']'>::kClose;
  section.rows = Rows;
  section.headVersion = Layout.headVersion;
  section.positional = {detail::Positions<Rows, Layout>::kSlots, Layout.lines, Layout.versioned, Layout.absentIsZero};
  return section;
}

/// Members that no section of this kind sets.
template <const auto& Rows>
constexpr Section unreadMembers() {
  static_assert(detail::areRowsRight<Rows>());
  Section section;
  section.rows = Rows;
  return section;
}

/// The table of a block. `heading` is the whole first line of its dump. `MemberOrder` names the dumped members, and
/// `SectionOrder` the sections as a line is tested for their openings, where these have an order of their own.
template <class Block, const auto& Sections, const auto& MemberOrder = kDeclarationOrder,
          const auto& SectionOrder = kDeclarationOrder>
constexpr BlockTable blockTable(std::string_view heading) {
  if (heading.empty() != detail::Dump<Sections, MemberOrder>::kRows.empty()) {
    throw "a block is dumped as a whole: it has a heading and labels (.tabs or .label), or neither";
  }
  return {detail::className<Block>(),
          heading,
          Sections,
          detail::Dump<Sections, MemberOrder>::kRows,
          []() -> void* { return new Block; },
          [](void* block) { delete static_cast<Block*>(block); },
          detail::Dispatch<Sections, SectionOrder>::kSections};
}

}  // namespace zeb
