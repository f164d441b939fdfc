// The short way of a line "KEY = NUMBER" that holds nothing else, which most lines are.
//
// Why it finds what the search of the whole line finds: no key holds a '=', and those that begin or end with a blank
// are left out, so that none reaches over the '=' or over the blanks around KEY and NUMBER. In front of the '=' there
// can only be parts of KEY, and these are known when the table is built (`found`). In the number there is none, nor
// does one begin there, as every key's first word holds a character that no number has. The same goes for the closing
// tag. All this is checked as the table is built. Where a row asks for more than its number, or more than a number
// stands behind the '=', the short way is left with the keys that stand in front of it, and the text behind it is
// searched.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

#include "engine/Field.hpp"
#include "engine/KeyFilter.hpp"
#include "engine/ShortNumber.hpp"

namespace zeb {

/// No key holds such a character but for blanks between its words; also control characters count.
constexpr bool isBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

/// The first eight characters, the first in the low byte.
constexpr std::uint64_t eightAt(const char* at) {
  std::uint64_t eight = 0;
  if (std::is_constant_evaluated() || std::endian::native != std::endian::little) {
    for (unsigned i = 0; i < 8; ++i) eight |= std::uint64_t{static_cast<unsigned char>(at[i])} << (8 * i);
  } else {
    std::memcpy(&eight, at, sizeof eight);
  }
  return eight;
}

/// What the table of exact keys is asked for: a text as three loads see it, the last eight characters, the first, and
/// those in the middle. They overlap in a text of up to 24 characters, and so are all of it. Of a shorter text than
/// eight the first is all, behind zeros.
struct KeyPrint {
  static constexpr std::size_t kSeenWhole = 24;

  std::uint64_t tail = 0;
  std::uint64_t front = 0;
  std::uint64_t middle = 0;
  std::size_t length = 0;

  /// Eight characters before the text are read.
  static constexpr KeyPrint of(const char* text, std::size_t length) {
    const std::uint64_t tail = eightAt(text + length - 8);
    if (length < 8) return {tail >> (8 * (8 - length)), 0, 0, length};
    return {tail, eightAt(text), eightAt(text + length / 2 - 4), length};
  }
  constexpr bool operator==(const KeyPrint&) const = default;

  constexpr std::size_t slot(std::uint64_t seed, unsigned shift) const {
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15u;
    const std::uint64_t mixed = tail ^ std::rotl(front, 21) ^ std::rotl(middle, 43) ^ length;
    return static_cast<std::size_t>(((mixed ^ seed) * kMultiplier) >> shift);
  }
};

struct ExactKey {
  KeyPrint print = {};
  std::string_view text = {};
  FieldType plain = FieldType::kNone;  // kInt or kDouble: the number is all, no other key is part of this one
  void* (*locate)(void* block) = nullptr;
  KeySet found = {};  // this key and those that are part of it
};

/// The keys of a section by their whole text.
struct ExactKeys {
  const ExactKey* keys = nullptr;
  const std::uint8_t* slots = nullptr;  // number of the key + 1, 0 for none
  std::uint64_t seed = 0;
  unsigned shift = 63;

  /// The key that is all that stands in front of the '='; null where it is none. The line needs its margins.
  const ExactKey* find(const char* line, const char* equals) const {
    while (line != equals && isBlank(*line)) ++line;
    const char* last = equals;
    while (last != line && isBlank(last[-1])) --last;
    if (last == line) return nullptr;
    const auto length = static_cast<std::size_t>(last - line);
    const KeyPrint print = KeyPrint::of(line, length);
    const std::uint8_t number = slots[print.slot(seed, shift)];
    if (number == 0) return nullptr;
    const ExactKey& key = keys[number - 1];
    if (key.print != print) return nullptr;
    return length <= KeyPrint::kSeenWhole || key.text == std::string_view(line, length) ? &key : nullptr;
  }
};

/// Stores the number that stands from `at` on, where it is a short one, a blank or nothing stands behind it, and
/// neither a key nor the closing tag in what follows.
template <class Number>
bool storeShort(const char* at, const char* end, const KeyFilter& filter, Number& member) {
  while (*at == ' ') ++at;
  Number number;
  at = readShort(at, EndsByItself(), number);
  if (at == nullptr || !(at == end || isBlank(*at))) return false;
  if (at != end && filter.find({at, static_cast<std::size_t>(end - at)}).any()) return false;
  member = number;
  return true;
}

/// The whole short way, for a key of the line that is told where its '=' and its end are. False, and nothing is stored,
/// where it does not lead to the line's end.
inline bool storeExact(const ExactKey& key, void* block, const char* equals, const char* end, const KeyFilter& filter) {
  if (key.plain == FieldType::kInt) return storeShort(equals + 1, end, filter, *static_cast<int*>(key.locate(block)));
  if (key.plain == FieldType::kNone) return false;
  return storeShort(equals + 1, end, filter, *static_cast<double*>(key.locate(block)));
}

namespace detail {

constexpr bool isPartOfNumbers(std::string_view text) { return text.find_first_not_of("0123456789+-.eE") == text.npos; }

constexpr std::string_view withoutBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// A bit for each of its characters: a text holds another one only if it has all of its bits.
constexpr std::uint64_t charactersOf(std::string_view text) {
  std::uint64_t characters = 0;
  for (const char c : text) characters |= std::uint64_t{1} << (static_cast<unsigned char>(c) % 64);
  return characters;
}

/// The table for the keys of a section, of which some are plain numbers.
template <std::size_t Count>
struct ExactKeysTable {
  // So many slots that nearly every seed is free of collisions.
  static constexpr unsigned kBits = Count < 2 ? 1 : std::bit_width(std::min<std::size_t>(Count * Count / 2, 4095));

  std::array<ExactKey, Count> keys{};
  std::array<std::uint8_t, std::size_t{1} << kBits> slots{};
  std::array<bool, Count> isExact{};
  std::uint64_t seed = 0;

  struct Part {
    std::string_view text;  // without blanks around
    std::uint64_t characters;
  };

  constexpr ExactKeysTable(std::span<const std::string_view> texts, std::string_view closingTag,
                           const std::array<Field, Count>& plain) {
    std::array<Part, Count> parts{};
    for (std::size_t k = 0; k < Count; ++k) parts[k] = {withoutBlanks(texts[k]), charactersOf(withoutBlanks(texts[k]))};
    for (std::size_t k = 0; k < Count; ++k) {
      check(texts[k]);
      if (texts[k].find(closingTag) != texts[k].npos) throw "a key holds its section's closing tag";
      keys[k].text = texts[k];
      isExact[k] = true;
      const bool isAlone = findParts(k, texts, parts);
      if (isAlone) keys[k].plain = plain[k].type;
      if (isAlone) keys[k].locate = plain[k].locate;
    }
    check(closingTag);
    if (!canPlace(texts)) throw "two keys of the section have the same print: look at more characters in KeyPrint";
  }

  static constexpr void check(std::string_view text) {
    if (text.empty() || text.size() > 255) throw "a key has 1 to 255 characters";
    if (text.find('=') != text.npos) throw "a key that holds a '=' is never found";
    // The text behind a number is searched from the blank on that ends it.
    const std::string_view key = withoutBlanks(text);
    const std::string_view word(key.begin(), std::ranges::find_if(key, isBlank));
    if (isPartOfNumbers(word)) throw "a key's first word needs a character that is not part of a number";
  }

  // False where other keys are a part of this one. A key that ends with a blank is in other lines a part of what
  // stands in front of the '=': neither is taken for exact, nor is a key of which it may be a part.
  constexpr bool findParts(std::size_t key, std::span<const std::string_view> texts,
                           const std::array<Part, Count>& parts) {
    const std::string_view text = texts[key];
    bool isAlone = true;
    for (std::size_t part = 0; part < Count; ++part) {
      if ((parts[part].characters & ~parts[key].characters) != 0) continue;  // most: clang allows a million steps
      const std::string_view inner = parts[part].text;
      if (text.find(inner) == text.npos) continue;
      if (inner.size() != texts[part].size()) isExact[key] = false;
      keys[key].found.insert(part);
      isAlone = isAlone && part == key;
    }
    return isAlone;
  }

  constexpr bool canPlace(std::span<const std::string_view> texts) {
    for (std::size_t k = 0; k < Count; ++k) {
      char padded[8 + 255] = {};
      std::copy(texts[k].begin(), texts[k].end(), padded + 8);
      keys[k].print = KeyPrint::of(padded + 8, texts[k].size());
    }
    for (int tries = 0; tries < 1000; ++tries, seed += 0x5851F42D4C957F2Du) {
      if (place()) return true;
    }
    return false;
  }

  // False where two keys meet in a slot.
  constexpr bool place() {
    slots = {};
    for (std::size_t k = 0; k < Count; ++k) {
      if (!isExact[k]) continue;
      std::uint8_t& slot = slots[keys[k].print.slot(seed, 64 - kBits)];
      if (slot != 0 && keys[slot - 1u].text == keys[k].text) continue;  // one key of two rows
      if (slot != 0) return false;
      slot = static_cast<std::uint8_t>(k + 1);
    }
    return true;
  }

  constexpr ExactKeys view() const { return {keys.data(), slots.data(), seed, 64 - kBits}; }
};

}  // namespace detail

}  // namespace zeb
