// The collective calls of a communicator, and what they are called.
#pragma once

#include <cstddef>

namespace zeb {

/// The characters of one Broadc.
constexpr std::size_t kCallTextSize = 255;

enum class CallKind : unsigned char { kBarrier, kBroadi, kBroadd, kBroadc };

/// The communicator's name of the call, for example "Broadi".
inline const char* callName(CallKind kind) {
  switch (kind) {
    case CallKind::kBarrier:
      return "Barrier";
    case CallKind::kBroadi:
      return "Broadi";
    case CallKind::kBroadd:
      return "Broadd";
    case CallKind::kBroadc:
      return "Broadc";
  }
  return "unknown call";
}

}  // namespace zeb
