// All blocks of a CMX parameter set.
#pragma once

#include "cmx/CZEBCMX_Dyna_Forming.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_HRSteady.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_LONGFIBER.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_MCIM.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_SlipBC.h"
#include "cmx/CZEBCMX_FILL_OUTPUT_TIMES.h"
#include "cmx/CZEBCMX_PACK_OUTPUT_TIMES.h"
#include "cmx/CZEBCMX_SOLID_COOL.h"
#include "cmx/CZEBCMX_SOLID_FILL.h"
#include "cmx/CZEBCMX_SOLID_PACK.h"
#include "cmx/CZEBCMX_SOLID_VE.h"
#include "cmx/CZEBCMX_TASKMANAGER.h"
