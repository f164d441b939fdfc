// All keys of a section that stand anywhere in a line, and the section's closing tag, found in one pass over the line.
//
// Every occurrence of a key covers a window of three characters that starts at a position divisible by the stride. So
// the scan looks only at those windows; the table, built by the compiler, knows which keys hold which window, and a hit
// is confirmed by comparing the whole key.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <string_view>

namespace zeb {

/// A set of key numbers, visited in ascending order: the order in which the reader tests them.
class KeySet {
 public:
  static constexpr std::size_t kCapacity = 128;

  constexpr void insert(std::size_t key) { m_bits[key / 64] |= std::uint64_t{1} << (key % 64); }
  constexpr void insert(const KeySet& other) {
    m_bits[0] |= other.m_bits[0];
    m_bits[1] |= other.m_bits[1];
  }
  constexpr bool empty() const { return (m_bits[0] | m_bits[1]) == 0; }
  /// Takes out the smallest key. The set must not be empty.
  constexpr std::size_t popFirst() { return m_bits[0] != 0 ? popFirst(m_bits[0]) : 64 + popFirst(m_bits[1]); }
  /// Takes out every key up to and including `key`.
  constexpr void dropUpTo(std::size_t key) {
    while (!empty() && first() <= key) popFirst();
  }
  constexpr bool operator==(const KeySet&) const = default;

 private:
  constexpr std::size_t first() const { return KeySet(*this).popFirst(); }
  static constexpr std::size_t popFirst(std::uint64_t& word) {
    const int bit = std::countr_zero(word);
    word &= word - 1;
    return static_cast<std::size_t>(bit);
  }

  std::uint64_t m_bits[2] = {};
};

/// The view of a filter that the scan works on; the tables behind it have static storage.
struct KeyFilter {
  struct Entry {
    std::uint32_t window;  // the characters, the first in the low byte
    std::uint8_t key;
    std::uint8_t offset;  // of the window in the key
    std::uint8_t next;    // chain: number of the next entry + 1, 0 at the end
  };

  /// What stands in a line.
  struct Hits {
    KeySet keys;
    bool closingTag = false;

    bool any() const { return closingTag || !keys.empty(); }
  };

  std::span<const std::string_view> keys;
  const std::string_view* texts = nullptr;  // the keys and, behind them, the closing tag
  const Entry* entries = nullptr;
  const std::uint8_t* heads = nullptr;  // by hash: number of the first entry + 1, 0 for none
  unsigned shift = 0;
  std::uint8_t window = 0;
  std::uint8_t stride = 1;

  // The low byte is zero: so a fourth character loaded with the window multiplies out of the hash.
  static constexpr std::uint32_t kMultiplier = 0x3779B100u;
  static_assert((kMultiplier & 0xFFu) == 0);

  /// Requires that one more character may be read behind the line's last one (as in every std::string).
  Hits find(std::string_view line) const;
  std::string_view closingTag() const { return texts[keys.size()]; }
};

namespace detail {

constexpr std::uint32_t windowAt(std::string_view text, std::size_t at, std::size_t width) {
  std::uint32_t window = 0;
  for (std::size_t i = 0; i < width; ++i) {
    window |= std::uint32_t{static_cast<unsigned char>(text[at + i])} << (8 * i);
  }
  return window;
}

/// The tables of a filter for `Count` texts, the last of which is the closing tag; the shortest has `Shortest`
/// characters.
template <std::size_t Count, std::size_t Shortest>
struct KeyFilterTables {
  static_assert(Count <= KeySet::kCapacity);
  static_assert(Shortest >= 1);
  static constexpr std::size_t kWindow = Shortest < 3 ? Shortest : 3;
  static constexpr std::size_t kStride = std::min<std::size_t>(Shortest - kWindow + 1, 4);
  static constexpr std::size_t kEntries = Count * kStride;
  static_assert(kEntries < 255, "the chain's numbers are bytes");
  // Sixteen heads for each entry: a window that belongs to no key meets an empty head 15 times of 16.
  static constexpr unsigned kBits = static_cast<unsigned>(std::bit_width(kEntries * 16 - 1));
  static constexpr unsigned kShift = 32 - kBits;

  std::array<std::string_view, Count> texts{};
  std::array<KeyFilter::Entry, kEntries> entries{};
  std::array<std::uint8_t, std::size_t{1} << kBits> heads{};

  static constexpr std::size_t hash(std::string_view key, std::size_t at) {
    return (windowAt(key, at, kWindow) * KeyFilter::kMultiplier) >> kShift;
  }

  constexpr explicit KeyFilterTables(const std::array<std::string_view, Count>& allTexts) : texts(allTexts) {
    // A key's windows may be taken anywhere in it: those that the section's keys share least give the fewest false
    // hits.
    std::array<std::uint8_t, std::size_t{1} << kBits> uses{};
    for (const auto key : texts) {
      for (std::size_t at = 0; at + kWindow <= key.size(); ++at) {
        auto& count = uses[hash(key, at)];
        if (count < 255) ++count;
      }
    }
    std::size_t entry = 0;
    for (std::size_t k = 0; k < Count; ++k) {
      const std::size_t first = rarest(texts[k], uses);
      for (std::size_t offset = first; offset < first + kStride; ++offset) {
        auto& head = heads[hash(texts[k], offset)];
        entries[entry] = {windowAt(texts[k], offset, kWindow), static_cast<std::uint8_t>(k),
                          static_cast<std::uint8_t>(offset), head};
        head = static_cast<std::uint8_t>(++entry);
      }
    }
  }

  template <class Uses>
  static constexpr std::size_t rarest(std::string_view key, const Uses& uses) {
    std::size_t best = 0;
    unsigned bestUses = ~0u;
    for (std::size_t first = 0; first + kStride - 1 + kWindow <= key.size(); ++first) {
      unsigned sum = 0;
      for (std::size_t offset = first; offset < first + kStride; ++offset) sum += uses[hash(key, offset)];
      if (sum < bestUses) {
        bestUses = sum;
        best = first;
      }
    }
    return best;
  }

  /// Whether the scan meets a text wherever it stands in a line: its windows in the table have all distances to a place
  /// divisible by the stride, and their chains are found by what a line holds.
  constexpr bool findsEveryText() const {
    std::array<unsigned, Count> distances{};  // a bit for each
    for (const KeyFilter::Entry& entry : entries) {
      if (isFound(entry)) distances[entry.key] |= 1u << entry.offset % kStride;
    }
    return std::ranges::all_of(distances, [](unsigned found) { return found == (1u << kStride) - 1; });
  }

  constexpr bool isFound(const KeyFilter::Entry& entry) const {
    const std::string_view text = texts[entry.key];
    if (entry.offset + kWindow > text.size() || entry.window != windowAt(text, entry.offset, kWindow)) return false;
    std::uint8_t number = heads[hash(text, entry.offset)];
    while (number != 0 && &entries[number - 1] != &entry) number = entries[number - 1].next;
    return number != 0;
  }

  constexpr KeyFilter view() const {
    return {std::span(texts).first(Count - 1), texts.data(), entries.data(), heads.data(), kShift, kWindow, kStride};
  }
};

}  // namespace detail

}  // namespace zeb
