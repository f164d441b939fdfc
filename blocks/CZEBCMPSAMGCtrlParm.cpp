#include "blocks/CZEBCMPSAMGCtrlParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPSAMGCtrlParm)

int CZEBCMPSAMGCtrlParm::DebugMode() const { return m_iDebugMode; }
ZEB_GETTERS(CZEBCMPSAMGCtrlParm, n_Default, n_nrd, n_levelx, n_nru, n_RES_SCRATCH)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPSAMGCtrlParm>() {
  using T = CZEBCMPSAMGCtrlParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iDebugMode, &T::DebugMode>(), .key = "DebugMode", .tabs = 1,
       .known = "Debug mode of the SAMG linear solver."},
      {ZEB_FIELD(n_Default), .key = "n_Default", .tabs = 1, .known = "Control n_Default of the SAMG linear solver."},
      {ZEB_FIELD(n_nrd), .key = "n_nrd", .tabs = 2, .known = "Control n_nrd of the SAMG linear solver."},
      {ZEB_FIELD(n_levelx), .key = "n_levelx", .known = "Control n_levelx of the SAMG linear solver."},
      {ZEB_FIELD(n_nru), .key = "n_nru", .tabs = 2, .known = "Control n_nru of the SAMG linear solver."},
      {ZEB_FIELD(n_RES_SCRATCH), .key = "n_RES_SCRATCH", .label = "m_n_RES_SCRATC = ",
       .known = "Control n_RES_SCRATCH of the SAMG linear solver."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"SAMGParaCtrl", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------SAMG Ctrl Parameters---------");
  return kTable;
}
