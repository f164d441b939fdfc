// What fails beneath the library when a test wants it to: reads of opened files, links, and memory.
#pragma once

#include <cstddef>

namespace zebtest {

/// While it lives, reading any file that the library opens fails behind so many lines.
class ReadsFailBehind {
 public:
  explicit ReadsFailBehind(int lines);
  ReadsFailBehind(const ReadsFailBehind&) = delete;
  ReadsFailBehind& operator=(const ReadsFailBehind&) = delete;
  ~ReadsFailBehind();
};

/// While it lives, no file gets a second name: what a file system without links answers.
class LinksAreRefused {
 public:
  LinksAreRefused();
  LinksAreRefused(const LinksAreRefused&) = delete;
  LinksAreRefused& operator=(const LinksAreRefused&) = delete;
  ~LinksAreRefused();
};

/// While it lives, large allocations are counted.
class LargeAllocations {
 public:
  explicit LargeAllocations(std::size_t fromBytes);
  LargeAllocations(const LargeAllocations&) = delete;
  LargeAllocations& operator=(const LargeAllocations&) = delete;
  ~LargeAllocations();

  int count() const;
};

}  // namespace zebtest
