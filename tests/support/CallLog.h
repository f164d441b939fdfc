// A record of collective calls: compact enough to keep for thousands of files, exact to the last byte.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "standalone/CallKind.hpp"

namespace zeb {

/// Collective calls with their values, in order. Two logs are equal if every call and every byte sent is.
class CallLog {
 public:
  void addBarrier() { addCall(CallKind::kBarrier, nullptr, 0); }
  void addInt(int value) { addCall(CallKind::kBroadi, &value, sizeof value); }
  void addDouble(double value) { addCall(CallKind::kBroadd, &value, sizeof value); }
  void addText(const char (&buffer)[kCallTextSize]);

  std::size_t size() const { return count_; }
  bool empty() const { return count_ == 0; }
  void clear() { *this = CallLog(); }

  /// One text per call: `Barrier`, `Broadi 3`, `Broadd 2.5` (shortest form that reads back the same), `Broadc "text"`
  /// (up to the first NUL; quotes, backslashes and control characters escaped).
  std::vector<std::string> calls() const;

  /// The same, one call a line.
  std::string text() const;

  bool operator==(const CallLog& other) const { return count_ == other.count_ && bytes_ == other.bytes_; }
  bool operator!=(const CallLog& other) const { return !(*this == other); }

 private:
  friend class CallReader;
  void addCall(CallKind kind, const void* value, std::size_t size);

  std::string bytes_;  // per call its kind and its value; a text as its length without trailing NULs, then its bytes
  std::size_t count_ = 0;
};

/// Walks a log from its first call. The log must outlive the reader and must not change meanwhile.
class CallReader {
 public:
  explicit CallReader(const CallLog& log) : log_(&log) {}

  bool atEnd() const { return index_ == log_->count_; }
  std::size_t index() const { return index_; }  ///< Number of the current call, from 0.

  // The following need !atEnd(), and the value the current call's kind.
  CallKind kind() const { return static_cast<CallKind>(log_->bytes_[offset_]); }
  int intValue() const;
  double doubleValue() const;
  void copyText(char (&buffer)[kCallTextSize]) const;
  std::string describe() const;
  void next();

 private:
  const char* value() const { return log_->bytes_.data() + offset_ + 1; }
  std::size_t textLength() const { return static_cast<unsigned char>(*value()); }

  const CallLog* log_;
  std::size_t offset_ = 0;
  std::size_t index_ = 0;
};

}  // namespace zeb
