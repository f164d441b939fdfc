#include "blocks/CZEBCMPCompressibleFlowParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPCompressibleFlowParm)

ZEB_GETTERS(CZEBCMPCompressibleFlowParm, iCompressible, iUseNormalStressTerm, iCompressible_SIMPLER_Niter,
            iCompressible_CM_Niter, dCompressible_SIMPLER_Tol, dCompressible_PISO_Tol, dCompressible_TolPres,
            dCompressible_U_Tol, dCompressible_V_Tol, dCompressible_W_Tol, dCompressible_U_Relax, dCompressible_V_Relax,
            dCompressible_W_Relax, dCompressible_CM_P_Tol, dCompressible_CM_P_Relax, dAirdDdp, dVentAirDdp)

void CZEBCMPCompressibleFlowParm::SetVentAirDdp(double value) { m_dVentAirDdp = value; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPCompressibleFlowParm>() {
  using T = CZEBCMPCompressibleFlowParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iCompressible), .key = "CompressibleFlow", .tabs = 4, .doc = "Switch: compressible flow."},
      {ZEB_FIELD(iUseNormalStressTerm), .key = "UseNormalStressTerm", .echo = {"UseNormalStressTerm     = "}, .tabs = 3,
       .doc = "Switch: use of the normal-stress term."},
      {ZEB_FIELD(iCompressible_SIMPLER_Niter), .key = "Compressible_SIMPLE_Niter",
       .echo = {"Compressible_SIMPLE_Niter = "}, .tabs = 1, .doc = "Number of SIMPLE iterations."},
      {ZEB_FIELD(iCompressible_CM_Niter), .key = "Compressible_CM_Niter", .echo = {"Compressible_CM_Niter = "},
       .tabs = 2, .doc = "Number of CM iterations."},
      {ZEB_FIELD(dCompressible_SIMPLER_Tol), .key = "Compressible_SIMPLE_Tol", .echo = {"Compressible_SIMPLE_Tol = "},
       .tabs = 1, .doc = "Tolerance of the SIMPLE iterations."},
      {ZEB_FIELD(dCompressible_PISO_Tol), .tabs = 2, .doc = "Tolerance of the PISO iterations."},
      {ZEB_FIELD(dCompressible_TolPres), .key = "Compressible_TolPres", .echo = {"Compressible_TolPres = "}, .tabs = 2,
       .doc = "Tolerance of the pressure."},
      {ZEB_FIELD(dCompressible_U_Tol), .key = "Compressible_UVW_Tol", .echo = {"Compressible_UVW_Tol    = "}, .tabs = 3,
       .doc = "Tolerance of the velocity component U."},
      {ZEB_FIELD(dCompressible_V_Tol), .key = "Compressible_UVW_Tol", .tabs = 3,
       .doc = "Tolerance of the velocity component V."},
      {ZEB_FIELD(dCompressible_W_Tol), .key = "Compressible_UVW_Tol", .tabs = 3,
       .doc = "Tolerance of the velocity component W."},
      {ZEB_FIELD(dCompressible_U_Relax), .key = "Compressible_UVW_Relax", .echo = {"Compressible_UVW_Relax    = "},
       .tabs = 2, .doc = "Relaxation of the velocity component U."},
      {ZEB_FIELD(dCompressible_V_Relax), .key = "Compressible_UVW_Relax", .tabs = 2,
       .doc = "Relaxation of the velocity component V."},
      {ZEB_FIELD(dCompressible_W_Relax), .key = "Compressible_UVW_Relax", .tabs = 2,
       .doc = "Relaxation of the velocity component W."},
      {ZEB_FIELD(dCompressible_CM_P_Tol), .key = "Compressible_CM_P_Tol", .echo = {"Compressible_P_Tol    = "},
       .tabs = 2, .doc = "Tolerance of the pressure in the CM iterations."},
      {ZEB_FIELD(dCompressible_CM_P_Relax), .key = "Compressible_CM_P_Relax", .echo = {"Compressible_P_Relax    = "},
       .tabs = 2, .doc = "Relaxation of the pressure in the CM iterations."},
      {ZEB_FIELD(dAirdDdp), .key = "AirdDdp", .echo = {"AirdDdp     = "}, .tabs = 6, .known = "dD/dp of the air."},
      {ZEB_FIELD(dVentAirDdp), .key = "VentdDdp", .echo = {"m_dVentAirDdp     = "}, .tabs = 5,
       .known = "dD/dp of the vented air."},
  };
  static constexpr Order<12> kReadingOrder{
      "CompressibleFlow", "Compressible_SIMPLE_Niter", "Compressible_CM_Niter", "Compressible_SIMPLE_Tol",
      "Compressible_TolPres", "Compressible_UVW_Tol", "Compressible_CM_P_Tol", "Compressible_UVW_Relax",
      "Compressible_CM_P_Relax", "UseNormalStressTerm", "AirdDdp", "VentdDdp"};
  static constexpr Order<17> kDumpOrder{
      "m_iCompressible", "m_iCompressible_SIMPLER_Niter", "m_iCompressible_CM_Niter", "m_dCompressible_SIMPLER_Tol",
      "m_dCompressible_PISO_Tol", "m_dCompressible_TolPres", "m_dCompressible_U_Tol", "m_dCompressible_V_Tol",
      "m_dCompressible_W_Tol", "m_dCompressible_U_Relax", "m_dCompressible_V_Relax", "m_dCompressible_W_Relax",
      "m_dCompressible_CM_P_Tol", "m_dCompressible_CM_P_Relax", "m_iUseNormalStressTerm", "m_dAirdDdp",
      "m_dVentAirDdp"};
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"CompressibleFlow", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable =
      blockTable<T, kSections, kDumpOrder>("\n---------CompressibleFlow Parameters---------");
  return kTable;
}
