// The material engine's records and functions, as the host's companion library declares them.
#pragma once

#include <string>

#include "platform/ZEBVisible.h"

/// One property table: `pdValue` holds iCount + 1 doubles, entries 0 to iCount - 1 are used.
struct ZebMatParam {
  int iA;
  int iB;
  int iCount;
  double* pdValue;
};

/// One entry of a test curve.
struct ZEB_MTC_Entry {
  int iValue[3];
  double dValue[21];
};

/// One test curve: `pEntry` and `pdValue` hold iCount elements each.
struct ZEB_MTC {
  int iA;
  int iB;
  int iCount;
  ZEB_MTC_Entry* pEntry;
  double* pdValue;
};

/// One material: header, seven texts of 255 characters, seventeen property tables, model values and coefficients.
struct ZebMaterial {
  int iHeader[6];
  char* szText[7];
  ZebMatParam table[17];
  void* pEngine;          ///< The engine's own; neither copied nor distributed.
  int iModel[4];          ///< iModel[2] selects how many coefficients are used: 1, 2 or 3 (five).
  double* pdCoefficient;  ///< Six doubles.
  double dLast;
};

ZEB_VISIBLE ZebMaterial* ZebGetMaterial(const std::string& name);
ZEB_VISIBLE int ZebGetMTCInfo(ZebMaterial* material, int& unused, int& count);
ZEB_VISIBLE const ZEB_MTC* ZebGetMTCData(ZebMaterial* material, int index);
ZEB_VISIBLE void ZebReleaseMaterial(ZebMaterial* material);
