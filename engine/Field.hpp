// A member of a block as its table names it: where it is, what type it has, what it and its getter are called.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "engine/SharedArray.h"

namespace zeb {

enum class FieldType : std::uint8_t { kNone, kInt, kDouble, kBool, kText, kInts, kDoubles };

struct Field {
  FieldType type = FieldType::kNone;
  void* (*locate)(void* block) = nullptr;
  double (*get)(const void* block) = nullptr;  // the public getter of a number, as hosts call it
  const char* (*getText)(const void* block) = nullptr;
  std::string_view member;  // "m_dAirPressure"
  std::string_view getter;  // "dAirPressure"; empty for a member without a getter
};

namespace detail {

// The compiler's own spelling of a pointer to member ends with "Pointer = &Class::name" and ']' or ';'.
template <auto Pointer>
consteval std::string_view pointerName() {
  std::string_view text = __PRETTY_FUNCTION__;
  text.remove_prefix(text.find("Pointer = ") + 10);
  text = text.substr(0, text.find_first_of(";]"));
  const auto colons = text.rfind("::");
  return colons == text.npos ? std::string_view() : text.substr(colons + 2);
}

template <class Pointer>
struct MemberOf;
template <class Class, class Member>
struct MemberOf<Member Class::*> {
  using Block = Class;
  using Type = Member;
};

struct NoGetter {};

template <class Member>
consteval FieldType fieldType() {
  if constexpr (std::is_same_v<Member, int>) return FieldType::kInt;
  if constexpr (std::is_same_v<Member, double>) return FieldType::kDouble;
  if constexpr (std::is_same_v<Member, bool>) return FieldType::kBool;
  if constexpr (std::is_same_v<Member, OwnedText>) return FieldType::kText;
  if constexpr (std::is_same_v<Member, SharedArray<int>>) return FieldType::kInts;
  if constexpr (std::is_same_v<Member, SharedArray<double>>) return FieldType::kDoubles;
  return FieldType::kNone;
}

}  // namespace detail

/// The field of a member and its getter; the getter is left out where the class has none for this member alone.
template <auto Member, auto Getter = detail::NoGetter()>
consteval Field field() {
  using Block = typename detail::MemberOf<decltype(Member)>::Block;
  using Type = typename detail::MemberOf<decltype(Member)>::Type;
  Field result;
  result.type = detail::fieldType<Type>();
  result.locate = [](void* block) -> void* { return &(static_cast<Block*>(block)->*Member); };
  result.member = detail::pointerName<Member>();
  if constexpr (std::is_member_pointer_v<decltype(Getter)>) {
    result.getter = detail::pointerName<Getter>();
    using Result = std::invoke_result_t<decltype(Getter), const Block&>;
    if constexpr (std::is_arithmetic_v<Result>) {
      result.get = [](const void* block) { return static_cast<double>((static_cast<const Block*>(block)->*Getter)()); };
    } else if constexpr (std::is_same_v<Result, const char*>) {
      result.getText = [](const void* block) { return (static_cast<const Block*>(block)->*Getter)(); };
    }
  }
  return result;
}

}  // namespace zeb
