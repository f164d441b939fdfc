// The blocks of a CMX parameter set.
#pragma once

#include "cmx/CZEBKNCMXCompParm.h"
#include "engine/BlockTypes.hpp"

// One row per block, in the order in which a line is tested for their tags: its class, the parameter set's accessor.
// clang-format off
#define ZEB_CMX_BLOCKS(BLOCK)                                        \
  BLOCK(CZEBCMX_SOLID_FILL, getSOLID_FILL)                           \
  BLOCK(CZEBCMX_FILL_ADVANCED_SlipBC, getFILL_ADVANCED_SlipBC)       \
  BLOCK(CZEBCMX_SOLID_COOL, getSOLID_COOL)                           \
  BLOCK(CZEBCMX_SOLID_VE, getSOLID_VE)                               \
  BLOCK(CZEBCMX_SOLID_PACK, getSOLID_PACK)                           \
  BLOCK(CZEBCMX_FILL_ADVANCED_LONGFIBER, getFILL_ADVANCED_LONGFIBER) \
  BLOCK(CZEBCMX_FILL_ADVANCED_HRSteady, getFILL_ADVANCED_HRSteady)   \
  BLOCK(CZEBCMX_TASKMANAGER, get_TASKMANAGER)                        \
  BLOCK(CZEBCMX_Dyna_Forming, getDyna_Forming)                       \
  BLOCK(CZEBCMX_FILL_ADVANCED_MCIM, getFILL_ADVANCED_MCIM)           \
  BLOCK(CZEBCMX_FILL_OUTPUT_TIMES, getFILL_OUTPUT_TIMES)             \
  BLOCK(CZEBCMX_PACK_OUTPUT_TIMES, getPACK_OUTPUT_TIMES)
// clang-format on

namespace zeb {

#define ZEB_CLASS(Class, accessor) , Class
using CMXBlocks = BlockTypesAfter<void ZEB_CMX_BLOCKS(ZEB_CLASS)>;
#undef ZEB_CLASS

/// Makes all blocks, with their defaults.
BlockSet<CMXBlocks> makeCMXBlocks();

}  // namespace zeb
