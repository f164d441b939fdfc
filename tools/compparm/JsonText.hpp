// Values and origins of parameters as JSON.
#pragma once

#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "inspect/explain/Settings.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

using Json = nlohmann::ordered_json;

/// Numbers, switches and lists as JSON values; what JSON cannot say as a number (nan, inf) as text.
inline Json jsonOf(const std::string& value) {
  Json parsed = Json::parse(value, nullptr, false);
  if (!parsed.is_discarded()) return parsed;
  if (!value.starts_with('[')) return value;
  parsed = Json::array();
  for (const std::string& element : split(value.substr(1, value.size() - 2), ',')) {
    parsed.push_back(jsonOf(element.substr(element.find_first_not_of(' '))));
  }
  return parsed;
}

/// As above, texts without their quotes.
inline Json jsonOf(const zeb::Row& row, const std::string& value) {
  if (value == "none") return nullptr;
  return row.field.type == zeb::FieldType::kText ? Json(value.substr(1, value.size() - 2)) : jsonOf(value);
}

/// Texts of a file may be no UTF-8: what is not is replaced.
inline void print(const Json& document) {
  std::cout << document.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace compparm
