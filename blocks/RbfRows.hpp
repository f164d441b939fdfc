// The rows that the radial-basis-function (RBF) blocks have in common; each block hands in its own members.
#pragma once

#include <array>

#include "engine/ParameterTable.hpp"

namespace zeb {

// clang-format off
constexpr Row rbfVersion(const Field& field) {
  return {.field = field, .key = "Version", .label = "m_iVersion\t\t\t= ",
          .known = "Version of the RBF interpolation."};
}

constexpr Row rbfSpan(const Field& field) {
  return {.field = field, .key = "Span", .label = "m_iSpan\t\t\t= ", .known = "Span."};
}

/// The rows of an RBF block that searches its neighbours.
/// In the files only the search method's key carries the type prefix.
constexpr std::array<Row, 6> rbfSearchRows(const Field& version, const Field& span, const Field& searchMethod,
                                           const Field& searchDistance, const Field& searchNumber,
                                           const Field& debugMode) {
  return {{
      rbfVersion(version),
      rbfSpan(span),
      {.field = searchMethod, .key = "iSearch_method", .label = "m_iSearch_method\t= ", .known = "Search method."},
      {.field = searchDistance, .key = "Search_distance", .label = "m_dSearch_distance\t= ",
       .doc = "Search distance."},
      {.field = searchNumber, .key = "Search_number", .label = "m_iSearch_number\t= ", .doc = "Search number."},
      {.field = debugMode, .key = "Debug", .label = "m_iDebugMode\t\t= ", .known = "Debug mode."},
  }};
}
// clang-format on

}  // namespace zeb
