// The functions that hosts link and that have nothing to say: each must be a symbol of its own, out of line.
#pragma once

/// The four functions of a block that is copied member by member.
#define ZEB_DEFAULTED(Block)                  \
  Block::Block() = default;                   \
  Block::Block(const Block& other) = default; \
  Block::~Block() = default;                  \
  Block& Block::operator=(const Block& other) = default;

/// The getters of numbers that are called as their members without "m_"; the types follow from the members.
#define ZEB_GETTERS(Block, ...) ZEB_GETTERS_OF(Block, ZEB_MEMBER, __VA_ARGS__)
#define ZEB_MEMBER(name) m_##name

/// The getters of numbers of which `Where(name)` tells where they are.
#define ZEB_GETTERS_OF(Block, Where, ...) ZEB_RESCAN(ZEB_GETTER(Block, Where, __VA_ARGS__))

#define ZEB_GETTER(Block, Where, name, ...)                               \
  auto Block::name() const->decltype(Where(name)) { return Where(name); } \
  __VA_OPT__(ZEB_NEXT_GETTER ZEB_PARENS(Block, Where, __VA_ARGS__))
#define ZEB_NEXT_GETTER() ZEB_GETTER
#define ZEB_PARENS ()

// The preprocessor takes a macro up again only where its result is read once more: here 4^4 = 256 times.
#define ZEB_RESCAN(...) ZEB_RESCAN3(ZEB_RESCAN3(ZEB_RESCAN3(ZEB_RESCAN3(__VA_ARGS__))))
#define ZEB_RESCAN3(...) ZEB_RESCAN2(ZEB_RESCAN2(ZEB_RESCAN2(ZEB_RESCAN2(__VA_ARGS__))))
#define ZEB_RESCAN2(...) ZEB_RESCAN1(ZEB_RESCAN1(ZEB_RESCAN1(ZEB_RESCAN1(__VA_ARGS__))))
#define ZEB_RESCAN1(...) ZEB_RESCAN0(ZEB_RESCAN0(ZEB_RESCAN0(ZEB_RESCAN0(__VA_ARGS__))))
#define ZEB_RESCAN0(...) __VA_ARGS__
