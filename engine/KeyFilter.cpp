// The scan itself, one instance for each width and stride of the windows.
#include "engine/KeyFilter.hpp"

#include <cstring>

namespace zeb {

namespace {

// The window at `at`; behind one of three characters the line's next character or its terminator.
template <unsigned Width>
std::uint32_t load(const char* at) {
  constexpr unsigned kLoaded = Width == 3 ? 4 : Width;  // four bytes are one load
  if constexpr (std::endian::native != std::endian::little) return detail::windowAt({at, kLoaded}, 0, kLoaded);
  std::uint32_t window = 0;
  std::memcpy(&window, at, kLoaded);
  return window;
}

struct Scan {
  const KeyFilter& filter;
  std::string_view line;
  KeyFilter::Hits& found;

  void take(std::size_t text) {
    if (text == filter.keys.size()) {
      found.closingTag = true;
    } else {
      found.keys.insert(text);
    }
  }

  // Compares the whole text of each key in the chain whose window this is.
  void confirm(std::uint8_t number, std::uint32_t window, std::size_t at) {
    window &= 0xFFFFFFu;
    while (number != 0) {
      const KeyFilter::Entry& entry = filter.entries[number - 1];
      number = entry.next;
      if (entry.window != window || at < entry.offset) continue;
      const std::string_view key = filter.texts[entry.key];
      const std::size_t start = at - entry.offset;
      if (line.size() - start >= key.size() && std::memcmp(line.data() + start, key.data(), key.size()) == 0) {
        take(entry.key);
      }
    }
  }

  template <unsigned Width, std::size_t Stride>
  void run() {
    const std::uint8_t* const heads = filter.heads;
    const unsigned shift = filter.shift;
    const auto headOf = [=](std::uint32_t window) { return heads[(window * KeyFilter::kMultiplier) >> shift]; };
    std::size_t at = 0;
    // Two windows at a time: most often neither belongs to a key.
    for (; at + Stride + Width <= line.size(); at += 2 * Stride) {
      const auto first = load<Width>(line.data() + at), second = load<Width>(line.data() + at + Stride);
      const std::uint8_t firstHead = headOf(first), secondHead = headOf(second);
      if ((firstHead | secondHead) == 0) [[likely]] {
        continue;
      }
      confirm(firstHead, first, at);
      confirm(secondHead, second, at + Stride);
    }
    if (at + Width <= line.size()) {
      const auto last = load<Width>(line.data() + at);
      confirm(headOf(last), last, at);
    }
  }
};

}  // namespace

KeyFilter::Hits KeyFilter::find(std::string_view line) const {
  Hits hits;
  Scan scan{*this, line, hits};
  if (window < 3) {
    // Windows so narrow come with a stride of one.
    window == 1 ? scan.run<1, 1>() : scan.run<2, 1>();
  } else if (stride == 1) {
    scan.run<3, 1>();
  } else if (stride == 2) {
    scan.run<3, 2>();
  } else if (stride == 3) {
    scan.run<3, 3>();
  } else {
    scan.run<3, 4>();
  }
  return hits;
}

}  // namespace zeb
