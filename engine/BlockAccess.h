// How a block opens its members to its own parameter table, and to nothing else.
#pragma once

namespace zeb {

struct BlockTable;
struct Inspection;
struct Repairs;
struct ViscoelasticReader;

/// The parameter table of a block class; each block's source defines its own. Blocks befriend it, so that the
/// table can name their private members.
template <class Block>
const BlockTable& tableOf();

}  // namespace zeb
