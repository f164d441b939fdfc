// The rows of lines 2 to 16, as far as the two cooling analyses have them in common.
#pragma once

#include <array>

#include "engine/TableBuilder.hpp"

namespace zeb {

template <class T>
struct CoolRows {
  // clang-format off
  static constexpr auto kTimeSteps = std::to_array<Row>({
      {ZEB_FIELD(iGetlsolvTP), .at = {{2, 1}}, .known = "Linear solver of TP."},
      {ZEB_FIELD(iGetlsolvTM), .at = {{2, 2}}, .known = "Linear solver of TM."},
      {ZEB_FIELD(iGetPreCondP), .at = {{3, 1}}, .known = "Preconditioner of P."},
      {ZEB_FIELD(iGetPreCondM), .at = {{3, 2}}, .known = "Preconditioner of M."},
      {ZEB_FIELD(iGetIluNLevelFill), .at = {{4, 1}}, .doc = "Fill level of the incomplete LU factorisation."},
      {ZEB_FIELD(iGetNiterP), .at = {{5, 1}}, .doc = "Number of iterations of P."},
      {ZEB_FIELD(iGetNiterM), .at = {{5, 2}}, .doc = "Number of iterations of M."},
      {ZEB_FIELD(iGetIterStep), .at = {{5, 3}}, .known = "Iteration step."},
      {ZEB_FIELD(iGetNiterGrad), .at = {{5, 4}}, .doc = "Number of iterations of the gradient."},
      {ZEB_FIELD(iGetNTimeStep), .at = {{6, 1}}, .doc = "Number of time steps."},
      {ZEB_FIELD(iGetTimeStep), .at = {{6, 2}}, .known = "Time step parameter."},
      {ZEB_FIELD(dGetDt), .at = {{6, 3}}, .doc = "Size of a time step."},
      {ZEB_FIELD(iGetBlendTime), .at = {{6, 4}}, .known = "Blending in time."},
  });
  static constexpr auto kIterations = std::to_array<Row>({
      {ZEB_FIELD(dGetTolerP), .at = {{7, 1}}, .doc = "Tolerance of P."},
      {ZEB_FIELD(dGetTolerM), .at = {{7, 2}}, .doc = "Tolerance of M."},
      {ZEB_FIELD(dGetBlend), .at = {{8, 1}}, .doc = "Blending factor."},
      {ZEB_FIELD(iGetNiterInP), .at = {{9, 1}}, .doc = "Number of inner iterations of P."},
      {ZEB_FIELD(iGetNiterInM), .at = {{9, 2}}, .doc = "Number of inner iterations of M."},
      {ZEB_FIELD(dGetTolerInP), .at = {{10, 1}}, .doc = "Tolerance of the inner iterations of P."},
      {ZEB_FIELD(dGetTolerInM), .at = {{10, 2}}, .doc = "Tolerance of the inner iterations of M."},
      {ZEB_FIELD(dGetRelaxP), .at = {{11, 1}}, .doc = "Relaxation factor of P."},
      {ZEB_FIELD(dGetRelaxM), .at = {{11, 2}}, .doc = "Relaxation factor of M."},
      {ZEB_FIELD(iGetlCmpChk), .at = {{12, 1}}, .opaque = true},
      {ZEB_FIELD(iGetNiterMP), .at = {{13, 1}}, .doc = "Number of iterations between M and P."},
      {ZEB_FIELD(dGetTolerMP), .at = {{13, 2}}, .doc = "Tolerance of the iterations between M and P."},
  });
  static constexpr auto kUnderRelaxation = std::to_array<Row>({
      {ZEB_FIELD(dGetBoundTempUnder), .at = {{14, 1}}, .doc = "Under-relaxation of the boundary temperature."},
      {ZEB_FIELD(dGetBoundFluxUnder), .at = {{14, 2}}, .doc = "Under-relaxation of the boundary flux."},
      {ZEB_FIELD(dGetGeoRhsPUnder), .at = {{15, 1}}, .doc = "Under-relaxation of the right-hand side of P."},
      {ZEB_FIELD(dGetGeoRhsMUnder),
       .doc = "Under-relaxation of the right-hand side of M; no field of the section sets it."},
      {ZEB_FIELD(dGetGeoTempPUnder), .at = {{16, 1}}, .doc = "Under-relaxation of the temperature of P."},
      {ZEB_FIELD(dGetGeoTempMUnder), .at = {{15, 2}, {16, 2}},
       .doc = "Under-relaxation of the temperature of M; stands in two lines, the later one wins."},
  });
  // clang-format on

  template <std::size_t... Counts>
  static constexpr auto inOrder(const std::array<Row, Counts>&... parts) {
    std::array<Row, (Counts + ...)> rows{};
    auto next = rows.begin();
    ((next = std::copy(parts.begin(), parts.end(), next)), ...);
    return rows;
  }
};

}  // namespace zeb
