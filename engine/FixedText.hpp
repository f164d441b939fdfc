// Texts at compile time.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zeb {

/// A text as a template argument.
template <std::size_t Size>
struct FixedText {
  char text[Size] = {};
  constexpr FixedText() = default;
  constexpr FixedText(const char (&source)[Size]) { std::copy_n(source, Size, text); }  // NOLINT: implicit on purpose
  constexpr std::string_view view() const { return {text, Size - 1}; }
};

template <std::size_t A, std::size_t B>
constexpr FixedText<A + B - 1> operator+(const FixedText<A>& a, const FixedText<B>& b) {
  FixedText<A + B - 1> both;
  std::copy_n(b.text, B, std::copy_n(a.text, A - 1, both.text));
  return both;
}

}  // namespace zeb
