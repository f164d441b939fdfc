#include "inspect/check/DiagnosticOutput.hpp"

#include <algorithm>

namespace zeb {

namespace {

using Json = nlohmann::ordered_json;

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

std::string asUri(std::string_view path) {
  constexpr std::string_view kPlain = "-._~/ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string uri;
  for (const char c : path) {
    if (kPlain.find(c) != kPlain.npos) {
      uri += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    uri += {'%', kHex[byte >> 4], kHex[byte & 15]};
  }
  return uri.starts_with('/') ? "file://" + uri : uri;
}

Json asResult(const Diagnostic& found, std::string_view severity) {
  Json location = {{"artifactLocation", {{"uri", asUri(found.file)}}}};
  if (found.place.line > 0) {
    location["region"] = {{"startLine", found.place.line}, {"startColumn", found.place.column}};
  }
  return {{"ruleId", found.rule->id},
          {"ruleIndex", indexOf(*found.rule)},
          {"level", severity},
          {"message", {{"text", found.message + ". Hint: " + found.hint + "."}}},
          {"locations", Json::array({Json{{"physicalLocation", std::move(location)}}})}};
}

}  // namespace

std::string headline(const Diagnostic& found, std::string_view severity) {
  std::string text = found.file;
  if (found.place.line > 0) text += ":" + std::to_string(found.place.line) + ":" + std::to_string(found.place.column);
  text += ": " + std::string(severity) + ": " + found.message + " [" + std::string(found.rule->id) + "]";
  std::replace_if(text.begin(), text.end(), isControl, '?');
  return text;
}

std::string excerpt(const Diagnostic& found) {
  if (found.place.line == 0) return {};
  const std::string cut = found.place.textColumn > 1 ? "..." : "";
  std::string line = "  " + cut, caret = "  " + std::string(cut.size(), ' ');
  int column = found.place.textColumn;
  for (const char c : found.place.text) {
    const bool continues = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
    // A tab in the caret's line keeps it in place, however wide the terminal makes it.
    if (!continues && column++ < found.place.column) caret += c == '\t' ? '\t' : ' ';
    line += isControl(c) && c != '\t' ? '?' : c;
  }
  while (!line.empty() && line.back() == ' ') line.pop_back();
  return line + "\n" + caret + "^\n";
}

Json diagnosticsAsJson(std::span<const Diagnostic> all, std::string_view severity) {
  Json list = Json::array();
  for (const Diagnostic& found : all) {
    list.push_back({{"file", found.file},
                    {"line", found.place.line},
                    {"column", found.place.column},
                    {"severity", severity},
                    {"rule", found.rule->id},
                    {"message", found.message},
                    {"hint", found.hint}});
  }
  return list;
}

Json diagnosticsAsSarif(std::span<const Diagnostic> all, std::string_view severity) {
  Json rules = Json::array();
  for (const CheckRule* rule : checkRules()) {
    rules.push_back({{"id", rule->id},
                     {"shortDescription", {{"text", rule->about}}},
                     {"help", {{"text", rule->hint}}},
                     {"defaultConfiguration", {{"enabled", rule->byDefault}, {"level", "warning"}}}});
  }
  Json results = Json::array();
  for (const Diagnostic& found : all) results.push_back(asResult(found, severity));
  Json driver = {{"name", "compparm"}, {"version", ZEB_VERSION}, {"rules", std::move(rules)}};
  Json run = {
      {"tool", {{"driver", std::move(driver)}}}, {"columnKind", "unicodeCodePoints"}, {"results", std::move(results)}};
  return {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
          {"version", "2.1.0"},
          {"runs", Json::array({std::move(run)})}};
}

}  // namespace zeb
