// The list of output moments that the blocks of filling and packing have in common.
#pragma once

#include "engine/SectionEngine.hpp"
#include "engine/SharedArray.h"

namespace zeb {

constexpr ListLines kMomentLines{.numbered = true, .number = ListLines::Number::kScanned};

/// Makes room for as many moments as the key of `context` says (and one more, at 0) and reads them, one line
/// "id = moment" each. The id is not used; a line without a moment leaves 0.0.
ListResult readOutputMoments(ListContext& context, SharedArray<double>& moments);

}  // namespace zeb
