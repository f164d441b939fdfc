// Parameter tables: everything that is known about a block's members, keys, dump lines and head positions, as data.
//
// To add a parameter: declare the member with its default and its getter in the block's header, name the getter among
// ZEB_GETTERS in the block's source, and add one row to the table below it. Where the section has a reading order or
// the block a dump order of its own, name the new key or member there too: the compiler refuses an order that is not
// whole.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

#include "engine/ExactLine.hpp"
#include "engine/Field.hpp"
#include "engine/KeyFilter.hpp"

namespace zeb {

struct ListContext;
struct Parsed;
struct Row;
struct Section;

/// How a key's value text becomes a value; by default the member's type decides.
enum class Lookup : std::uint8_t {
  kByType,    // int, double; for a text the rest of the line
  kInt,       // an int, stored into a double member
  kWord,      // a text's first word
  kPresence,  // the key's mere presence stores 1 (or true)
};

/// A value that gives way to another one.
struct Replacement {
  enum class When : std::uint8_t {
    kNever,
    kBelow,         // value < limit
    kAbove,         // value > limit
    kAtMost,        // value <= limit
    kNotAbove,      // not (value > limit): at most the limit, or not a number
    kEqual,         // value == limit
    kTruncatesTo0,  // -1 < value < 1
    kAlways,
  };
  When when = When::kNever;
  double limit = 0.0;
  double value = 0.0;

  bool fits(double scaled) const;
};

constexpr Replacement below(double limit, double becomes) { return {Replacement::When::kBelow, limit, becomes}; }
constexpr Replacement above(double limit, double becomes) { return {Replacement::When::kAbove, limit, becomes}; }
constexpr Replacement atMost(double limit, double becomes) { return {Replacement::When::kAtMost, limit, becomes}; }
constexpr Replacement notAbove(double limit, double becomes) { return {Replacement::When::kNotAbove, limit, becomes}; }
constexpr Replacement equal(double limit, double becomes) { return {Replacement::When::kEqual, limit, becomes}; }
constexpr Replacement always(double becomes) { return {Replacement::When::kAlways, 0.0, becomes}; }
constexpr Replacement truncatesToZero(double becomes) { return {Replacement::When::kTruncatesTo0, 0.0, becomes}; }

/// What is done to a parsed number before it is stored: scaled first, then the first replacement that fits.
struct Rule {
  double scale = 1.0;
  Replacement replace[2] = {};

  // Of a field in a head: only a value above is taken; the limit stands before the scale.
  double takenAbove = -std::numeric_limits<double>::infinity();

  constexpr bool isBounded() const { return takenAbove != -std::numeric_limits<double>::infinity(); }
  constexpr bool none() const { return scale == 1.0 && replace[0].when == Replacement::When::kNever; }
  double apply(double value) const;
  /// The same for a number on its way into a member; notes the replacement that fired.
  double applyTo(Parsed& parsed) const;
  /// The replacement that fits the scaled value; null where it stays.
  const Replacement* replacementOf(double scaled) const;
};

/// A line printed on every rank as soon as the value is stored, whatever the print level.
struct Echo {
  enum class Format : std::uint8_t { kGeneral, kFixed };
  std::string_view label = {};
  Format format = Format::kGeneral;
  std::string_view tail = "\n";
};

/// How the dump writes a value; by default as its type is streamed.
enum class DumpFormat : std::uint8_t {
  kByType,
  kLowBits,  // the low 32 bits of a double as a signed int: what "%d" makes of it
};

/// A place in a positional section: line and field, both counted from 1.
struct Position {
  std::uint8_t line = 0;
  std::uint8_t field = 0;
};

/// No gate: every value lets the line's later keys pass.
constexpr int kNoGate = std::numeric_limits<int>::min();

enum class ListResult : std::uint8_t {
  kSameLine,      // go on with the section's later keys on the line that started the list
  kNextLine,      // `line` now holds the line with which the section goes on
  kSectionEnded,  // the list met the closing line or the end of the input
};
/// Reads a list that is like no other; called after the key's value is stored.
using ListReader = ListResult (*)(ListContext& context);

/// What an entry of a list looks like.
enum class Entry : std::uint8_t {
  kValue,     // the number behind '='
  kNumbered,  // "3 = 0.5", by the formatted scan, to which nan, inf and hexadecimal are numbers; any number in front
  kNamed,     // "Cf = 0.5", by the formatted scan; any word in front
};

/// The entries that a key announces, one a line, and the array that takes them, from its element 1 on.
struct List {
  Field array = {};           // none: the row's `fills` tell what the reader sets
  Field count = {};           // how many; none: the announcing key's own value
  std::uint8_t perEntry = 1;  // elements of the array
  bool makesRoom = true;      // a new array each time
  bool hasLines = true;       // else room is all that is made: when it is needed, at the latest at the section's end
  bool lastIsRest = false;    // the last entry is one minus the others, whatever its line says
  bool toEndOfFile = false;   // it takes all lines that are left, the closing line included
  Entry entry = Entry::kValue;
  std::string_view entryName = {};  // before the '=' of each entry; empty: any text
  std::string_view countName = {};  // before the '=' of a first line that holds the count; empty: the key has it
  std::string_view missing = {};    // printed for each entry that is not there
  ListReader read = nullptr;        // null: as the above says

  constexpr bool isNone() const { return array.member.empty() && read == nullptr; }
  constexpr bool isRoomOnly() const { return !isNone() && read == nullptr && makesRoom && !hasLines; }
  constexpr bool isScanned() const { return entry != Entry::kValue; }
};

/// Runs as soon as the value of the key is stored, with the line that holds the key.
using WhenStored = void (*)(void* block, std::string_view line);

/// Whether a member is the number of a list's entries.
enum class Count : std::uint8_t {
  kNo,
  kYes,            // negative or above kLargestCount is refused
  kNegativeIsNone  // only above kLargestCount is refused; a negative one is stored and opens no list
};

/// Of a row that is one element of an array: an element that no array has.
constexpr std::uint16_t kNoElement = std::numeric_limits<std::uint16_t>::max();

constexpr std::int8_t kNoLabel = -1;
constexpr std::int8_t kOneSpace = -2;  // in place of tabs

/// One member of a block, or one further key of a member.
struct Row {
  Field field;
  std::string_view key = {};       // empty: no key sets the member
  std::string_view otherKey = {};  // a second spelling of the key
  Lookup lookup = Lookup::kByType;
  std::uint16_t textBuffer = 0;  // size of the buffer that a text is cut to; 0: as large as the text needs
  Rule rule = {};
  int gateBelow = kNoGate;    // while the int member is below, the line's later keys are skipped
  Count count = Count::kNo;   // sizes a list
  std::uint16_t element = 0;  // not 0: the key sets this element of the array, where the array has it
  List list = {};
  WhenStored whenStored = nullptr;
  std::span<const std::string_view> fills = {};  // members<...>: what `list.read` or `whenStored` sets besides
  Echo echo = {};
  std::int8_t tabs = kNoLabel;  // of the dump's label, when that is the member's name, so many tabs and "= "
  std::string_view label = {};  // any other label; with neither the member is never dumped
  DumpFormat dump = DumpFormat::kByType;
  Position at[2] = {};  // in a positional section; the later one wins
  std::string_view unit = {};
  std::string_view doc = {};    // what the member means
  std::string_view known = {};  // in place of `doc`: what is known of it where only the solver knows what it means
  bool opaque = false;          // nothing is known of it

  constexpr bool isDumped() const { return tabs != kNoLabel || !label.empty(); }
  constexpr bool isElement() const { return element != 0; }
  constexpr bool opensList() const { return !list.isNone() || whenStored != nullptr; }
  /// Whether reading the key comes to nothing more than parsing a number into the member.
  constexpr bool isPlainNumber() const {
    return field.isNumber() && lookup == Lookup::kByType && otherKey.empty() && rule.none() && count == Count::kNo &&
           !opensList() && echo.label.empty();
  }
};

/// The names of members, for Row::fills.
template <auto... Members>
inline constexpr std::array<std::string_view, sizeof...(Members)> members{detail::pointerName<Members>()...};

/// Whether what `announcing` opens or runs sets the member of `row`.
bool fills(const Row& announcing, const Row& row);

constexpr int kLargestCount = 1'000'000;

/// One field of a positional line. Without a row it is parsed and thrown away.
struct Slot {
  Position at;
  FieldType type;
  const Row* row;
};

struct PositionalLines {
  std::span<const Slot> slots;  // by line and field
  std::uint8_t lines = 0;
  bool versioned = false;          // line 1 must hold the value of the block's first member, or nothing is read
  std::uint32_t absentIsZero = 0;  // bit per line: a field that the line lacks counts as 0

  bool isAbsentZero(int line) const { return (absentIsZero >> line & 1u) != 0; }
};

struct Section {
  std::string_view name;                            // "Outlet"
  std::string_view open;                            // "[Outlet]"; empty for a head that no opening announces
  std::string_view close;                           // "[/Outlet]"
  std::span<const Row> rows;                        // in the order of declaration
  std::span<const std::uint8_t> readingOrder = {};  // row of each key, in the order in which the reader tests the keys
  KeyFilter filter = {};                            // numbers the keys in that order
  int gate = -1;                                    // number of the key whose member is the gate
  int roomOnly = -1;                                // number of the key whose list only makes room
  ExactKeys exactKeys = {};                         // the same keys
  bool closingLineIsRead = false;                   // the closing line's keys count too
  int headVersion = 0;                              // a head behind "[VER]": read only for this version number
  void (*whenRead)(void* block) = nullptr;          // runs at the end of each reading
  bool readByRank0 = false;                         // rank 0 reads the stream by itself and broadcasts the members
  PositionalLines positional = {};

  bool isPositional() const { return positional.lines > 0; }
  /// The row of a key, by the key's number.
  const Row& rowOf(std::size_t key) const { return rows[readingOrder[key]]; }
  /// Of a section with a gate.
  const Row& gateRow() const { return rowOf(static_cast<std::size_t>(gate)); }
};

struct BlockTable {
  std::string_view className;
  std::string_view heading;           // empty: the block is never dumped
  std::span<const Section> sections;  // their rows in the order of declaration
  std::span<const Row* const> dumpOrder;
  void* (*create)();  // a block with its defaults, for the tools
  void (*destroy)(void* block);
  std::span<const Section* const> dispatchOrder;  // those with an opening, as a line is tested for them
};

}  // namespace zeb
