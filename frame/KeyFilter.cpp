// The scan itself, one instance for each width of window.
#include "frame/KeyFilter.hpp"

#include <cstring>

namespace zeb {

namespace {

template <unsigned Width>
std::uint32_t load(const char* at) {
  std::uint32_t window = 0;
  if constexpr (Width == 3) {
    // Four bytes are one load; the fourth is at worst the line's terminator.
    std::memcpy(&window, at, 4);
    return std::endian::native == std::endian::little ? window & 0xFFFFFFu : window & 0xFFFFFF00u;
  } else {
    std::memcpy(&window, at, Width);
    return window;
  }
}

template <unsigned Width>
KeySet scan(const KeyFilter& filter, std::string_view line) {
  KeySet found;
  const std::size_t stride = filter.stride;
  for (std::size_t at = 0; at + Width <= line.size(); at += stride) {
    const std::uint32_t window = load<Width>(line.data() + at);
    std::uint8_t number = filter.heads[(window * KeyFilter::kMultiplier) >> filter.shift];
    while (number != 0) {
      const KeyFilter::Entry& entry = filter.entries[number - 1];
      if (entry.window == window && at >= entry.offset) {
        const std::string_view key = filter.keys[entry.key];
        const std::size_t start = at - entry.offset;
        if (line.size() - start >= key.size() && std::memcmp(line.data() + start, key.data(), key.size()) == 0) {
          found.insert(entry.key);
        }
      }
      number = entry.next;
    }
  }
  return found;
}

}  // namespace

KeySet KeyFilter::find(std::string_view line) const {
  switch (window) {
    case 1:
      return scan<1>(*this, line);
    case 2:
      return scan<2>(*this, line);
    default:
      return scan<3>(*this, line);
  }
}

}  // namespace zeb
