// Findings as text, JSON and SARIF.
#pragma once

#include <nlohmann/json.hpp>
#include <span>
#include <string>

#include "inspect/check/Diagnostic.hpp"

namespace zeb {

/// "file:line:column: warning: message [rule]"
std::string headline(const Diagnostic& found, std::string_view severity);
/// The line and below it a caret under the column; empty when there is no line.
std::string excerpt(const Diagnostic& found);
nlohmann::ordered_json diagnosticsAsJson(std::span<const Diagnostic> all, std::string_view severity);
/// SARIF 2.1.0 with the whole catalogue of rules.
nlohmann::ordered_json diagnosticsAsSarif(std::span<const Diagnostic> all, std::string_view severity);

}  // namespace zeb
