// What the checker found, line by line, bounded in number.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/Rules.hpp"

namespace zeb {

/// A place in a file, with as much of the line as is shown.
struct Place {
  int line = 0;        ///< from 1; 0 when the finding belongs to the whole file
  int column = 1;      ///< in characters, from 1
  std::string text;    ///< the part of the line that is shown
  int textColumn = 1;  ///< column of the text's first character
};

/// The place of the byte `at` of a line.
Place placeIn(int line, std::string_view text, std::size_t at);

struct Diagnostic {
  const CheckRule* rule;
  std::string file;
  int fileOrder = 0;
  Place place;
  std::string message;
  std::string hint;
};

/// Collects findings of the rules that are switched on, at most kMostPerRule of each in a file.
class DiagnosticList {
 public:
  static constexpr int kMostPerRule = 200;

  DiagnosticList();
  void enable(const CheckRule& rule, bool on);
  /// Whether a finding of this rule would be kept; callers may then save the work of wording it.
  bool wants(const CheckRule& rule) const;
  /// Counts a finding that is not worded, because wants() was false.
  void skip(const CheckRule& rule);

  /// An empty hint stands for the rule's own.
  void add(const CheckRule& rule, Place place, std::string message, std::string hint = {});
  /// `at` is an offset in bytes into `text`.
  void add(const CheckRule& rule, int line, std::string_view text, std::size_t at, std::string message,
           std::string hint = {});

  /// What is added from here on belongs to this file. Returns its number.
  int startFile(std::string name);
  /// Goes on with an earlier file; the number is startFile()'s.
  void continueFile(int number) { m_file = number; }
  int currentFile() const { return m_file; }

  const std::vector<Diagnostic>& all() const { return m_all; }
  /// By file, line and column.
  void sort();
  /// Found and not kept.
  int dropped() const { return m_dropped; }

 private:
  std::vector<Diagnostic> m_all;
  std::vector<bool> m_enabled;
  std::vector<int> m_counts;
  std::vector<std::string> m_files;
  int m_file = -1;
  int m_dropped = 0;
};

}  // namespace zeb
