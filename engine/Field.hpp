// A member of a block as its table names it: where it is, what type it has, what it and its getter are called.
#pragma once

#include <cassert>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "engine/SharedArray.h"

namespace zeb {

/// kNone stands only where there is no field: field() makes none of it.
enum class FieldType : std::uint8_t { kNone, kInt, kDouble, kBool, kText, kInts, kDoubles };

namespace detail {

// The compiler's own spelling of a pointer to member ends with "Pointer = &Class::name" and ']' or ';'.
template <auto Pointer>
consteval std::string_view pointerName() {
  std::string_view text = __PRETTY_FUNCTION__;
  const auto start = text.find("Pointer = ");
  if (start == text.npos) return {};
  text.remove_prefix(start + 10);
  text = text.substr(0, text.find_first_of(";]"));
  const auto colons = text.rfind("::");
  return colons == text.npos ? std::string_view() : text.substr(colons + 2);
}

struct Spelled {
  int m_iMember;
};
static_assert(pointerName<&Spelled::m_iMember>() == "m_iMember",
              "this compiler spells pointers to members in a way of its own: teach pointerName() to read it");

template <class Pointer>
struct MemberOf;
template <class Class, class Member>
struct MemberOf<Member Class::*> {
  using Block = Class;
  using Type = Member;
};

struct NoGetter {};

template <class Member>
constexpr FieldType fieldType() {
  if constexpr (std::is_same_v<Member, int>) return FieldType::kInt;
  if constexpr (std::is_same_v<Member, double>) return FieldType::kDouble;
  if constexpr (std::is_same_v<Member, bool>) return FieldType::kBool;
  if constexpr (std::is_same_v<Member, OwnedText>) return FieldType::kText;
  if constexpr (std::is_same_v<Member, SharedArray<int>>) return FieldType::kInts;
  if constexpr (std::is_same_v<Member, SharedArray<double>>) return FieldType::kDoubles;
  return FieldType::kNone;
}

// What a getter of a member returns: the number itself, or the text or array where it starts.
template <class Member>
struct Handed {
  using Type = Member;
};
template <>
struct Handed<OwnedText> {
  using Type = const char*;
};
template <class Element>
struct Handed<SharedArray<Element>> {
  using Type = const Element*;
};

}  // namespace detail

struct Field {
  FieldType type = FieldType::kNone;
  void* (*locate)(void* block) = nullptr;
  double (*get)(const void* block) = nullptr;  // the public getter of a number, as hosts call it
  const char* (*getText)(const void* block) = nullptr;
  std::string_view member;  // "m_dAirPressure"
  std::string_view getter;  // "dAirPressure"; empty for a member without a getter

  constexpr bool isNumber() const { return type == FieldType::kInt || type == FieldType::kDouble; }
  constexpr bool isArray() const { return type == FieldType::kInts || type == FieldType::kDoubles; }

  /// The member itself. `Type` must be the field's.
  template <class Type>
  Type& in(void* block) const {
    assert(type == detail::fieldType<Type>());
    return *static_cast<Type*>(locate(block));
  }
  template <class Type>
  const Type& in(const void* block) const {
    return in<Type>(const_cast<void*>(block));  // only read through; tables locate members of mutable blocks
  }
};

/// The field of a member and its getter; the getter is left out where the class has none for this member alone.
template <auto Member, auto Getter = detail::NoGetter()>
consteval Field field() {
  using Block = typename detail::MemberOf<decltype(Member)>::Block;
  using Type = typename detail::MemberOf<decltype(Member)>::Type;
  static_assert(detail::fieldType<Type>() != FieldType::kNone,
                "no table knows members of this type: use int, double, bool, OwnedText or SharedArray");
  Field result;
  result.type = detail::fieldType<Type>();
  result.locate = [](void* block) -> void* { return &(static_cast<Block*>(block)->*Member); };
  result.member = detail::pointerName<Member>();
  if constexpr (std::is_member_pointer_v<decltype(Getter)>) {
    result.getter = detail::pointerName<Getter>();
    using Result = std::invoke_result_t<decltype(Getter), const Block&>;
    static_assert(std::is_same_v<Result, typename detail::Handed<Type>::Type>,
                  "the getter returns another type than the member has: name the member's own getter");
    if constexpr (std::is_arithmetic_v<Result>) {
      result.get = [](const void* block) { return static_cast<double>((static_cast<const Block*>(block)->*Getter)()); };
    } else if constexpr (std::is_same_v<Result, const char*>) {
      result.getText = [](const void* block) { return (static_cast<const Block*>(block)->*Getter)(); };
    }
  }
  return result;
}

/// Calls `visitor` with the member itself, whatever its type.
template <class Visitor>
decltype(auto) visit(const Field& field, void* block, Visitor&& visitor) {
  switch (field.type) {
    case FieldType::kInt:
      return visitor(field.in<int>(block));
    case FieldType::kDouble:
      return visitor(field.in<double>(block));
    case FieldType::kBool:
      return visitor(field.in<bool>(block));
    case FieldType::kText:
      return visitor(field.in<OwnedText>(block));
    case FieldType::kInts:
      return visitor(field.in<SharedArray<int>>(block));
    case FieldType::kDoubles:
      return visitor(field.in<SharedArray<double>>(block));
    case FieldType::kNone:
      break;
  }
  __builtin_unreachable();  // field() makes none of this type
}

}  // namespace zeb
