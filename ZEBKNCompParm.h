// Every exported class of the library and the declarations of the companion libraries.
#pragma once

#include "blocks/AllBlocks.h"
#include "cmx/AllBlocks.h"
#include "cmx/COutput_F2C_MultiTiming.h"
#include "cmx/CZEBKNCMXCompParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "frame/KeyLookup.h"
#include "material/CZEBKNMaterialParam.h"
#include "material/CZEBKNProcessParam.h"
#include "platform/ZEB3DTool.h"
#include "platform/ZEBCom.h"
#include "platform/ZEBG.h"
#include "platform/ZEBMatrEngine.h"
#include "stdcmp/CZEBKNstdCMPCompParm.h"
