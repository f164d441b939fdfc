// The one place that makes blocks, and so the one that is compiled anew with every one of them.
#include "cmx/CMXBlocks.hpp"

#include "cmx/AllBlocks.h"

namespace zeb {

BlockSet<CMXBlocks> makeCMXBlocks() { return BlockSet<CMXBlocks>::make(); }

}  // namespace zeb
