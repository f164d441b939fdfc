// Values and origins of parameters as JSON.
#pragma once

#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "inspect/explain/Settings.hpp"

namespace compparm {

using Json = nlohmann::ordered_json;

/// Numbers, switches and lists as JSON values; texts without their quotes; what JSON cannot say as a number (nan, inf)
/// as text.
inline Json jsonOf(const zeb::Row& row, const std::string& value) {
  if (value == "none") return nullptr;
  if (row.field.type == zeb::FieldType::kText) return value.substr(1, value.size() - 2);
  const Json parsed = Json::parse(value, nullptr, false);
  return parsed.is_discarded() ? Json(value) : parsed;
}

/// Texts of a file may be no UTF-8: what is not is replaced.
inline void print(const Json& document) {
  std::cout << document.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace compparm
