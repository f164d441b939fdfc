// The record of one line: what the reader took it for and all that it made of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/ParameterTable.hpp"
#include "engine/ReadObserver.hpp"

namespace zeb {

/// A key or field that the reader found in a line.
struct Hit {
  const Row* row;
  void* block;
  std::string_view key;  ///< the spelling that matched; empty for a field and for a member set by a list's line
  KeyOutcome outcome;
  Parsed parsed;
  // Bytes of the line: where the key (of a field, the field) stands, the value text, and its part that was converted.
  std::size_t keyAt = 0;
  std::size_t valueAt = 0;
  std::size_t usedEnd = 0;
  std::size_t valueEnd = 0;
  std::string after = {};  ///< the member's value behind it, where the trace's reader wants values

  /// Whether the line gave the member a value, be it the same.
  bool sets() const { return outcome == KeyOutcome::kStored || outcome == KeyOutcome::kRefused; }
};

/// What a key opened or ran behind its value, now that it is over: a list, or the members set with it.
struct ListTaken {
  struct Entry {
    int line;
    std::string text;
    bool used;
  };
  /// A member that has no line of its own in the list.
  struct Member {
    const Row* row;
    void* block;
    bool isReplaced;    ///< by another value or a new array
    std::string after;  ///< as Hit::after
  };
  static constexpr std::size_t kMostEntries = 1000;

  Hit announcing;
  int line;                         ///< of the announcing key
  std::string text;                 ///< that line
  std::size_t hitsBefore;           ///< of the record that this stands in
  std::vector<Entry> entries;       ///< the first kMostEntries and the last one that was used
  int firstUsed = 0, lastUsed = 0;  ///< lines; 0 for none
  std::vector<Member> members;
};

/// A line that a list took.
struct TakenEntry {
  int list = 0;          ///< the line that announced the list
  bool used = false;     ///< the list could use it
  bool isCount = false;  ///< it holds the number of the entries
  double number = 0.0;
  std::size_t valueAt = 0, usedEnd = 0;  ///< where the number stands; the value ends with the line
};

struct Opening {
  const Section* section;
  int line;  ///< that holds the opening; 0 for a head at the file's start
  std::string text;
};

struct ReadLine {
  enum class Part {
    kOutside,     ///< of every section
    kKeyed,       ///< in a section of keys; the closing line too
    kEntry,       ///< taken by a list
    kPositional,  ///< known by its number in its section
    kNone,        ///< stands for the end of the input, or for the start of a file without openings
  };
  struct Version {
    bool parsed;
    int number;
  };

  int number = 0;
  std::string text;
  Part part = Part::kOutside;
  const Section* section = nullptr;  ///< in which it stands
  void* block = nullptr;             ///< of that section
  std::optional<Version> version;    ///< it announces a head
  std::vector<Hit> hits;             ///< in the order in which the reader found them
  std::vector<ListTaken> lists;      ///< that ended with it

  TakenEntry entry;  ///< of a line that a list took

  // Of a positional line
  int positionalLine = 0;  ///< counted in its section
  int converted = 0, expected = 0;
  std::size_t restAt = 0;  ///< where reading stopped
  bool isMissing = false;  ///< the input ended before it

  std::optional<SectionEnd> end;  ///< its section ends with it
  std::vector<Opening> openings;  ///< the sections that are read from the next line on, after that end

  std::string_view value(const Hit& hit) const { return part_(hit.valueAt, hit.valueEnd); }
  std::string_view convertedText(const Hit& hit) const { return part_(hit.valueAt, hit.usedEnd); }
  /// Calls `onHit` and `onList` for the hits and the lists that ended among them, in the order in which they came.
  template <class OnHit, class OnList>
  void inOrder(OnHit onHit, OnList onList) const {
    auto list = lists.begin();
    for (std::size_t i = 0; i <= hits.size(); ++i) {
      for (; list != lists.end() && list->hitsBefore == i; ++list) onList(*list);
      if (i < hits.size()) onHit(hits[i]);
    }
  }
  std::string_view left(const Hit& hit) const { return part_(hit.usedEnd, hit.valueEnd); }

 private:
  std::string_view part_(std::size_t from, std::size_t to) const {
    return std::string_view(text).substr(from, to - from);
  }
};

}  // namespace zeb
