// A list of block classes, and one block of each. The classes need not be complete where no block is made.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

namespace zeb {

template <class... Blocks>
struct BlockTypes {
  static constexpr std::size_t kCount = sizeof...(Blocks);

  template <class Block>
  static constexpr std::size_t kTimesListed = (std::size_t{0} + ... + std::size_t{std::is_same_v<Block, Blocks>});

  /// The place of a class in the list, from 0.
  template <class Block>
  static consteval std::size_t numberOf() {
    static_assert(kTimesListed<Block> == 1, "the list of blocks must hold this class, once");
    constexpr bool kIsIt[] = {std::is_same_v<Block, Blocks>...};
    std::size_t number = 0;
    while (!kIsIt[number]) ++number;
    return number;
  }
};

/// A list whose every class may have a comma in front.
template <class Ignored, class... Blocks>
using BlockTypesAfter = BlockTypes<Blocks...>;

template <class Types>
class BlockSet;

/// One block of each class of the list, found by class or by number.
template <class... Blocks>
class BlockSet<BlockTypes<Blocks...>> {
 public:
  /// All with their defaults. Called where every class is complete.
  static BlockSet make() {
    auto* blocks = new std::tuple<Blocks...>;
    return BlockSet({blocks, [](void* made) { delete static_cast<std::tuple<Blocks...>*>(made); }},
                    {&std::get<Blocks>(*blocks)...});
  }

  template <class Block>
  Block& get() const {
    return *static_cast<Block*>(m_at[BlockTypes<Blocks...>::template numberOf<Block>()]);
  }
  void* at(std::size_t number) const { return m_at[number]; }

 private:
  using Owner = std::unique_ptr<void, void (*)(void*)>;
  using Places = std::array<void*, sizeof...(Blocks)>;

  BlockSet(Owner owner, const Places& places) : m_owner(std::move(owner)), m_at(places) {}

  Owner m_owner;
  Places m_at;
};

}  // namespace zeb
