// What fails beneath the library when a test wants it to: reads of opened files, and links.
#pragma once

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

}  // namespace zebtest
