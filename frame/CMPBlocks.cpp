// The one place that makes blocks, and so the one that is compiled anew with every one of them.
#include "frame/CMPBlocks.hpp"

#include "blocks/AllBlocks.h"

namespace zeb {

BlockSet<CMPBlocks> makeCMPBlocks() { return BlockSet<CMPBlocks>::make(); }

}  // namespace zeb
