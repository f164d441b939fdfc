// What happens while a file is read and repaired, told to whoever records it. A solver has no observer.
#pragma once

#include <cstdint>
#include <string_view>

namespace zeb {

struct Replacement;
struct Row;
struct Section;

/// What became of a key or field that stands in a line.
enum class KeyOutcome : std::uint8_t {
  kStored,
  kUnparsed,   ///< the value text is no value of the key's type
  kGated,      ///< an earlier key of the section shuts this one out
  kNotStored,  ///< parsed, but there is nothing to store it in (an element beyond the list's count)
  kRefused,    ///< a list's count outside its valid range
  kNotTaken,   ///< a field of a head whose value is outside of its limit
  kConfirmed,  ///< the version line of a section: compared with the member, not stored
};

/// Why a text is no number.
enum class ParseFailure : std::uint8_t { kNone, kNoNumber, kRange };

/// A number on its way into a member, or the reason why there is none.
struct Parsed {
  double number = 0.0;  ///< as it stands in the file
  ParseFailure failure = ParseFailure::kNone;
  const Replacement* replaced = nullptr;  ///< the row's, where one gave the value that is stored
};

struct KeyEvent {
  const Section& section;
  const Row& row;
  void* block;
  std::string_view key;  ///< The spelling that matched; empty for a positional field and a member set by a list's line.
  std::string_view line;
  std::string_view value;  ///< The text after '=', or the field's text: a part of `line`.
  std::string_view tail;   ///< What was left of it when the conversion stopped.
  int lineNumber;
  KeyOutcome outcome;
  Parsed parsed = {};
};

/// A line that a list took as its next entry.
struct EntryEvent {
  bool used = false;            ///< the list could use it
  bool isCount = false;         ///< it holds the number of the entries
  std::string_view value = {};  ///< the text that holds the number: a part of the line
  std::string_view tail = {};   ///< What was left of it when the conversion stopped.
  double number = 0.0;
};

/// How a section came to its end.
enum class SectionEnd : std::uint8_t {
  kClosed,    ///< by its closing line
  kUnclosed,  ///< the input ended first
  kComplete,  ///< a positional section, whose lines are counted
  kRefused,   ///< a positional section: its version line holds another version
};

/// A member that the repairs after reading set, whether or not that changed its value.
struct RepairEvent {
  void* block;
  const Row* row;
  std::string_view condition;
  double before;
  double after;
};

/// Every operation does nothing by default. The texts are valid during the call only.
class ReadObserver {
 public:
  virtual ~ReadObserver() = default;
  /// Lines are counted anew from here. The name is known on every rank, the file may be missing.
  virtual void fileStarted(std::string_view /*fileName*/) {}
  /// A line as the readers see it: cut at its first NUL and, with a communicator, at 254 characters.
  virtual void lineRead(int /*lineNumber*/, std::string_view /*line*/) {}
  /// The line just read announces a head; `parsed` tells whether it holds a version.
  virtual void versionRead(bool /*parsed*/, int /*version*/) {}
  /// `openingLine` is the line that opens the section: the one read last, or one before it that opens several; empty
  /// for a head that stands at the file's start.
  virtual void sectionOpened(const Section& /*section*/, void* /*block*/, int /*lineNumber*/,
                             std::string_view /*openingLine*/) {}
  virtual void sectionEnded(const Section& /*section*/, SectionEnd /*end*/) {}
  virtual void keyFound(const KeyEvent& /*event*/) {}
  virtual void lineOfList(const EntryEvent& /*entry*/) {}
  /// What a key opened or ran (Row::list, Row::whenStored) is done.
  virtual void listEnded() {}
  /// A line of a positional section: how many fields were converted of how many that it should have, what was left.
  virtual void linePositional(int /*positionalLine*/, int /*converted*/, int /*expected*/, std::string_view /*tail*/) {}
  /// The viscoelastic file cannot be used, so that nothing of it is kept: the line that decided it (0 when the file
  /// cannot be opened) and why.
  virtual void fileRefused(int /*lineNumber*/, std::string_view /*reason*/) {}
  virtual void repaired(const RepairEvent& /*event*/) {}
};

}  // namespace zeb
