// Which lines of a list set which member.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/ReadObserver.hpp"
#include "engine/SharedArray.h"

namespace zeb {

/// Follows one list from the key that announces it to the next thing that happens.
class ListTrace {
 public:
  struct Line {
    int number;
    std::string text;
    bool used;
  };
  /// A member that the list fills.
  struct Member {
    const Row* row;
    void* block;
    std::vector<Line> lines;  ///< of an array: at most kMostLines and the last one

    const void* address() const;
    /// Whether the list has put another value, or a new array, in the place of the one before.
    bool isChanged() const;
    const Line* firstUsed() const;
    const Line* lastUsed() const;

    // What was there before. The arrays are held, so that a new one has another address.
    std::string valueBefore;
    SharedArray<int> intsBefore;
    SharedArray<double> doublesBefore;
  };
  static constexpr std::size_t kMostLines = 1000;

  bool isOpen() const { return m_announcing != nullptr; }
  /// Before the list is read.
  void start(const KeyEvent& event);
  /// Whether the event tells of a member that has a line of its own inside the open list. It then takes that line.
  bool takes(const KeyEvent& event);
  void line(int number, std::string_view text, bool used);
  /// Of the open list.
  const std::vector<Member>& members() const { return m_members; }
  /// Ends the list: its members that have no line of their own.
  std::vector<Member> finish();

 private:
  const Row* m_announcing = nullptr;
  int m_takenLine = 0;
  std::vector<Member> m_members;
};

}  // namespace zeb
