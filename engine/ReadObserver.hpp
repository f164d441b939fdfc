// What happens while a file is read and repaired, told to whoever wants to explain it. A solver has no observer.
#pragma once

#include <string_view>

namespace zeb {

struct Row;
struct Section;

/// What became of a key that stands in a line.
enum class KeyOutcome {
  kStored,
  kUnparsed,   ///< the value text is no value of the key's type
  kGated,      ///< an earlier key of the section shuts this one out
  kNotStored,  ///< parsed, but there is nothing to store it in (a list point beyond the count)
  kRefused,    ///< a list's count outside its valid range
};

struct KeyEvent {
  const Section& section;
  const Row& row;
  void* block;
  std::string_view key;  ///< The spelling that matched; empty for a positional field.
  std::string_view line;
  std::string_view value;  ///< The text after '=', or the field's text: a part of `line`.
  std::string_view tail;   ///< What was left of it when the conversion stopped.
  int lineNumber;
  KeyOutcome outcome;
};

/// A member that the repairs after reading set, whether or not that changed its value.
struct RepairEvent {
  void* block;
  const void* memberAddress;
  std::string_view blockClass;
  std::string_view member;
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
  /// The line just read stands outside of every section and opens none.
  virtual void lineOutside(int /*lineNumber*/, std::string_view /*line*/) {}
  virtual void versionRead(int /*lineNumber*/, std::string_view /*line*/, bool /*parsed*/, int /*version*/) {}
  virtual void sectionOpened(const Section& /*section*/, int /*lineNumber*/) {}
  virtual void sectionClosed(const Section& /*section*/, int /*lineNumber*/) {}
  /// The input ended first.
  virtual void sectionUnclosed(const Section& /*section*/, int /*lineNumber*/) {}
  /// The version line of a positional section differs from the one that its block knows.
  virtual void sectionRefused(const Section& /*section*/, int /*lineNumber*/, int /*version*/) {}
  virtual void keyFound(const KeyEvent& /*event*/) {}
  /// A field of the viscoelastic head is outside its limit, and its member stays as it is.
  virtual void fieldNotTaken(const KeyEvent& /*event*/) {}
  /// No key of the section stands in the line.
  virtual void lineWithoutKey(const Section& /*section*/, int /*lineNumber*/, std::string_view /*line*/) {}
  /// A list took the line as its next entry; `used` tells whether it could use it.
  virtual void lineOfList(const Section& /*section*/, int /*lineNumber*/, std::string_view /*line*/, bool /*used*/) {}
  /// A line of a positional section: how many fields were converted of how many that it should have, what was left.
  virtual void linePositional(const Section& /*section*/, int /*lineNumber*/, int /*positionalLine*/, int /*converted*/,
                              int /*expected*/, std::string_view /*tail*/) {}
  /// The viscoelastic file cannot be used, so that nothing of it is kept: the line that decided it (0 when the file
  /// cannot be opened) and why.
  virtual void viscoelasticRefused(int /*lineNumber*/, std::string_view /*reason*/) {}
  virtual void repaired(const RepairEvent& /*event*/) {}
};

}  // namespace zeb
