// A material as text, so that the copies of several ranks can be compared in one go.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "inspect/set/OutputCapture.hpp"
#include "material/CZEBKNMaterialParam.h"

namespace zebtest {

/// All test curves. Only asking for one too many tells their number; the message about it is dropped.
inline std::vector<const ZEB_MTC*> curvesOf(const CZEBKNMaterialParam& param) {
  const zeb::OutputCapture capture;
  std::vector<const ZEB_MTC*> curves;
  while (const ZEB_MTC* curve = param.GetMtcData(static_cast<int>(curves.size()))) curves.push_back(curve);
  return curves;
}

/// Everything that all ranks must have in common, which is all but the second to seventh text. Exact to the last bit of
/// every number that is one.
inline std::string recordText(const ZebMaterial& material, const std::vector<const ZEB_MTC*>& curves) {
  std::ostringstream out;
  out << std::hexfloat;
  for (const int value : material.iHeader) out << value << ' ';
  out << material.szText[0] << '\n';
  for (const ZebMatParam& table : material.table) {
    out << table.iA << ' ' << table.iB << ' ' << table.iCount << ':';
    for (int i = 0; i < table.iCount; ++i) out << ' ' << table.pdValue[i];
    out << '\n';
  }
  for (const int value : material.iModel) out << value << ' ';
  for (int i = 0; i < 6; ++i) out << material.pdCoefficient[i] << ' ';
  out << material.dLast << '\n' << curves.size() << " test curves\n";
  for (const ZEB_MTC* curve : curves) {
    out << curve->iA << ' ' << curve->iB << ' ' << curve->iCount << '\n';
    for (int i = 0; i < curve->iCount; ++i) {
      out << curve->pdValue[i];
      for (const int value : curve->pEntry[i].iValue) out << ' ' << value;
      for (const double value : curve->pEntry[i].dValue) out << ' ' << value;
      out << '\n';
    }
  }
  return out.str();
}

inline std::string recordText(const CZEBKNMaterialParam& param) {
  return recordText(*param.GetZebMaterial(), curvesOf(param));
}

}  // namespace zebtest
