// What the fuzzers share: files in memory, captured output, the lines that ranks must share, and comparing blocks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/ParameterTable.hpp"
#include "tests/support/CallLog.h"

namespace zebfuzz {

/// Prints the text on standard error and aborts: a finding.
[[noreturn]] void fail(const std::string& what);

inline void require(bool condition, const char* what) {
  if (!condition) [[unlikely]] {
    fail(what);
  }
}

/// The files that the opener finds while this object lives; every other name is missing. One at a time.
class Files {
 public:
  Files();
  ~Files();
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  /// `content` must outlive this object.
  void add(std::string name, std::string_view content);
  /// From now on whoever opens a file is a finding: ranks other than 0 have no files.
  void forbidOpening();
  void allowOpening();
};

/// Takes what is printed to std::cout, for the life of the program; nothing reaches the terminal.
class Output {
 public:
  static void start();
  /// What was printed for this input or since the last take(), up to a limit: some files ask for a million lines.
  static std::string take();
  static void drop();
  static constexpr std::size_t kLimit = 1 << 20;
};

/// The lines as they are read on rank 0: each up to its first NUL.
std::vector<std::string_view> wholeLines(std::string_view content);
/// Whether a serial run reads the same: no line is cut.
bool readsTheSameInSerial(std::string_view content);

/// A reader took every line of `content`, one collective read each, and then met the end at least once.
void requireLineByLine(const zeb::CallLog& log, std::string_view content, bool withBarrier);

/// Every member of the two blocks holds the same bits; pointers are compared by what they lead to.
void requireEqual(const zeb::BlockTable& table, void* a, void* b, const char* what);

/// What the block's getters hand out now. later() touches all of it: it must still be there, whatever was read since.
class HandedOut {
 public:
  void collect(const zeb::BlockTable& table, void* block);
  void later() const;

 private:
  std::vector<std::string_view> m_arrays;
};

/// The input's leading bytes as numbers; 0 when there are none left.
class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

  bool empty() const { return m_rest.empty(); }
  std::string_view rest() const { return m_rest; }
  Bytes behind(std::size_t count) const { return Bytes(m_rest.substr(count)); }
  unsigned byte();
  std::int32_t int32();
  double real();

 private:
  explicit Bytes(std::string_view rest) : m_rest(rest) {}
  void raw(void* out, std::size_t size);

  std::string_view m_rest;
};

/// What a program checks of one input: its own part, called by the entry points in FuzzSupport.cpp.
void checkInput(Bytes bytes);

}  // namespace zebfuzz
