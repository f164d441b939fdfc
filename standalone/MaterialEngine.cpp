// The material engine's four functions: finding and loading files, handing out and releasing records.
#include "standalone/MaterialEngine.h"

#include <dirent.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "standalone/HostDefinition.hpp"
#include "standalone/MaterialRecord.hpp"

namespace zeb {
namespace {

constexpr std::size_t kLargestFile = std::size_t{64} * 1024 * 1024;
constexpr std::string_view kSuffix = ".json";

struct EngineState {
  std::mutex mutex;
  std::optional<std::vector<std::string>> folders;
  std::string lastError;
  std::set<void*> records;  // that are handed out
};

EngineState& engineState() {
  static EngineState state;
  return state;
}

void setLastError(const char* error) noexcept {
  EngineState& state = engineState();
  const std::lock_guard lock(state.mutex);
  try {
    state.lastError = error;
  } catch (const std::bad_alloc&) {
    state.lastError = "out of memory";  // so short that it needs none
  }
}

bool namesFile(const std::string& name) {
  const auto separator = static_cast<char>(std::filesystem::path::preferred_separator);
  if (name.find('/') != std::string::npos || name.find(separator) != std::string::npos) return true;
  return name.size() >= kSuffix.size() && name.compare(name.size() - kSuffix.size(), kSuffix.size(), kSuffix) == 0;
}

bool exists(const std::string& file) {
  std::error_code ignored;
  return std::filesystem::exists(file, ignored);
}

bool isPlain(std::string_view name) {
  return std::none_of(name.begin(), name.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; });
}

/// The names of a folder's materials that a line of text can hold; none where the folder cannot be read. (The standard
/// library's directory_iterator ends the program where memory fails.)
std::set<std::string> materialsIn(const std::string& folder) {
  std::set<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> files(opendir(folder.c_str()), closedir);
  while (const dirent* const file = files == nullptr ? nullptr : readdir(files.get())) {
    std::string_view name = file->d_name;
    if (name.size() <= kSuffix.size() || !name.ends_with(kSuffix)) continue;
    name.remove_suffix(kSuffix.size());
    if (isPlain(name)) names.emplace(name);
  }
  return names;
}

/// Helps whoever mistyped a name.
std::string listOf(const std::set<std::string>& names) {
  constexpr std::size_t kShown = 10;
  std::string list;
  std::size_t count = 0;
  for (const std::string& name : names) {
    if (count++ == kShown) return list + ", ...";
    list += (list.empty() ? "; there are: " : ", ") + name;
  }
  return list;
}

std::string findMaterialFile(const std::string& name) {
  if (name.empty()) throw MaterialFileError("no material named");
  if (name.find('\0') != std::string::npos) throw MaterialFileError("the material's name holds a NUL");
  if (namesFile(name)) {
    if (!exists(name)) throw MaterialFileError("material file '" + name + "' not found");
    return name;
  }
  std::string places;
  std::set<std::string> others;
  for (const std::string& folder : materialFolders()) {
    std::string file = (std::filesystem::path(folder) / (name + std::string(kSuffix))).string();
    if (exists(file)) return file;
    places += (places.empty() ? " in " : ", ") + folder;
    others.merge(materialsIn(folder));
  }
  if (places.empty()) places = ": no material folders";
  throw MaterialFileError("material '" + name + "' not found" + places + listOf(others));
}

std::string readFile(const std::string& file) {
  if (!std::filesystem::is_regular_file(file)) throw MaterialFileError("is not a file");
  if (std::filesystem::file_size(file) > kLargestFile) throw MaterialFileError("is larger than 64 MB");
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw MaterialFileError("cannot be opened");
  std::string text(static_cast<std::size_t>(std::filesystem::file_size(file)), '\0');
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (stream.bad()) throw MaterialFileError("cannot be read");
  text.resize(static_cast<std::size_t>(stream.gcount()));
  return text;
}

std::unique_ptr<MaterialRecord> loadMaterial(const std::string& name) {
  const std::string file = findMaterialFile(name);
  try {
    auto record = std::make_unique<MaterialRecord>();
    parseMaterial(readFile(file), *record);
    record->material.pEngine = record.get();
    return record;
  } catch (const std::filesystem::filesystem_error& error) {
    throw MaterialFileError("material file '" + file + "': " + error.code().message());
  } catch (const MaterialFileError& error) {
    throw MaterialFileError("material file '" + file + "': " + error.what());
  }
}

/// Null for a material of another engine.
MaterialRecord* recordOf(ZebMaterial* material) {
  EngineState& state = engineState();
  const std::lock_guard lock(state.mutex);
  const bool isOwn = material != nullptr && state.records.contains(material->pEngine);
  return isOwn ? static_cast<MaterialRecord*>(material->pEngine) : nullptr;
}

ZebMaterial* handOut(std::unique_ptr<MaterialRecord> record) {
  EngineState& state = engineState();
  const std::lock_guard lock(state.mutex);
  state.records.insert(record.get());
  return &record.release()->material;
}

void takeBack(MaterialRecord* record) {
  EngineState& state = engineState();
  const std::lock_guard lock(state.mutex);
  state.records.erase(record);
  delete record;
}

/// What the host's engine does with a material that this one has not made; null where there is none.
template <class Function>
Function* hostFunction(ZebMaterial* material, const char* symbol, const void* caller) {
  return recordOf(material) == nullptr ? hostDefinition<Function>(symbol, caller) : nullptr;
}

}  // namespace

void setMaterialFolders(std::vector<std::string> folders) {
  EngineState& state = engineState();
  const std::lock_guard lock(state.mutex);
  state.folders = std::move(folders);
}

std::vector<std::string> materialFolders() {
  EngineState& state = engineState();
  const std::lock_guard lock(state.mutex);
  return state.folders.value_or(std::vector<std::string>{"."});
}

std::string lastMaterialError() {
  EngineState& state = engineState();
  const std::lock_guard lock(state.mutex);
  return state.lastError;
}

}  // namespace zeb

ZebMaterial* ZebGetMaterial(const std::string& name) {
  if (auto* const get =
          zeb::hostDefinition<decltype(ZebGetMaterial)>(zeb::symbol::kGetMaterial, __builtin_return_address(0))) {
    return get(name);
  }
  try {
    auto record = zeb::loadMaterial(name);
    zeb::setLastError("");
    return zeb::handOut(std::move(record));
  } catch (const std::bad_alloc&) {
    zeb::setLastError("out of memory");
  } catch (const std::exception& error) {
    zeb::setLastError(error.what());
  }
  return nullptr;
}

int ZebGetMTCInfo(ZebMaterial* material, int& unused, int& count) {
  if (auto* const get =
          zeb::hostFunction<decltype(ZebGetMTCInfo)>(material, zeb::symbol::kGetMTCInfo, __builtin_return_address(0))) {
    return get(material, unused, count);
  }
  const zeb::MaterialRecord* const record = zeb::recordOf(material);
  unused = 0;
  count = record == nullptr ? 0 : static_cast<int>(record->testCurves.size());
  return record == nullptr ? -1 : 1;
}

const ZEB_MTC* ZebGetMTCData(ZebMaterial* material, int index) {
  if (auto* const get =
          zeb::hostFunction<decltype(ZebGetMTCData)>(material, zeb::symbol::kGetMTCData, __builtin_return_address(0))) {
    return get(material, index);
  }
  const zeb::MaterialRecord* const record = zeb::recordOf(material);
  if (record == nullptr || index < 0 || static_cast<std::size_t>(index) >= record->testCurves.size()) return nullptr;
  return &record->testCurves[static_cast<std::size_t>(index)].record;
}

void ZebReleaseMaterial(ZebMaterial* material) {
  if (auto* const release = zeb::hostFunction<decltype(ZebReleaseMaterial)>(material, zeb::symbol::kReleaseMaterial,
                                                                            __builtin_return_address(0))) {
    return release(material);
  }
  zeb::takeBack(zeb::recordOf(material));
}
