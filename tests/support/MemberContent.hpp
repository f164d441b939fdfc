// Whether members hold the same, pointers compared by what they lead to.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

#include "engine/Field.hpp"

namespace zebtest {

namespace detail {

template <class T>
std::string_view bytesOf(const zeb::SharedArray<T>& array) {
  if (array.get() == nullptr) return {};
  return {reinterpret_cast<const char*>(array.get()), array.size() * sizeof(T)};
}

template <class Value>
std::string_view bitsOf(const void* member) {
  return {static_cast<const char*>(member), sizeof(Value)};
}

// A fuzzer's run compares several thousand numbers: loads, not calls of memcmp.
template <class Bits>
bool sameBits(const void* a, const void* b) {
  Bits first{}, second{};
  std::memcpy(&first, a, sizeof first);
  std::memcpy(&second, b, sizeof second);
  return first == second;
}

}  // namespace detail

/// The content of a member as bytes; arrays without one have no data either.
inline std::string_view contentOf(const zeb::Field& field, void* block) {
  void* const member = field.locate(block);
  switch (field.type) {
    case zeb::FieldType::kInt:
      return detail::bitsOf<int>(member);
    case zeb::FieldType::kDouble:
      return detail::bitsOf<double>(member);
    case zeb::FieldType::kBool:
      return detail::bitsOf<bool>(member);
    case zeb::FieldType::kText: {
      const char* text = static_cast<const zeb::OwnedText*>(member)->get();
      return text == nullptr ? std::string_view() : std::string_view(text, std::strlen(text) + 1);
    }
    case zeb::FieldType::kInts:
      return detail::bytesOf(*static_cast<const zeb::SharedArray<int>*>(member));
    case zeb::FieldType::kDoubles:
      return detail::bytesOf(*static_cast<const zeb::SharedArray<double>*>(member));
    case zeb::FieldType::kNone:
      break;
  }
  return {};
}

inline bool sameContent(const zeb::Field& field, void* a, void* b) {
  switch (field.type) {
    case zeb::FieldType::kInt:
      return detail::sameBits<std::uint32_t>(field.locate(a), field.locate(b));
    case zeb::FieldType::kDouble:
      return detail::sameBits<std::uint64_t>(field.locate(a), field.locate(b));
    case zeb::FieldType::kBool:
      return detail::sameBits<std::uint8_t>(field.locate(a), field.locate(b));
    default:
      return contentOf(field, a) == contentOf(field, b);
  }
}

}  // namespace zebtest
