#include "blocks/CZEBCMPEpoxyVEParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPEpoxyVEParm::CZEBCMPEpoxyVEParm() = default;
CZEBCMPEpoxyVEParm::CZEBCMPEpoxyVEParm(const CZEBCMPEpoxyVEParm& other) = default;
CZEBCMPEpoxyVEParm::~CZEBCMPEpoxyVEParm() = default;
CZEBCMPEpoxyVEParm& CZEBCMPEpoxyVEParm::operator=(const CZEBCMPEpoxyVEParm& other) = default;

int CZEBCMPEpoxyVEParm::iIsRIMVE() const { return m_iIsRIMVE; }
int CZEBCMPEpoxyVEParm::iRIMVEModel() const { return m_iRIMVEModel; }
double CZEBCMPEpoxyVEParm::dEpoxy_VE_G() const { return m_dEpoxy_VE_G; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPEpoxyVEParm>() {
  using T = CZEBCMPEpoxyVEParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iIsRIMVE, &T::iIsRIMVE>(), .key = "FlagEpoxy_VE", .label = "m_iIsRIMVE\t\t= ",
       .doc = "Switch: epoxy viscoelasticity."},
      {.field = field<&T::m_iRIMVEModel, &T::iRIMVEModel>(), .key = "VEModel", .label = "m_iRIMVEModel\t= ",
       .doc = "Viscoelastic model of the epoxy. Meaning defined by the solver."},
      {.field = field<&T::m_dEpoxy_VE_G, &T::dEpoxy_VE_G>(), .key = "Model_G", .lookup = Lookup::kInt,
       .label = "m_dEpoxy_VE_G\t= ",
       .doc = "Parameter G of the viscoelastic model; the file gives an integer."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"Epoxy_VE", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------EpoxyVE Parameters---------");
  return kTable;
}
