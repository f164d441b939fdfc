// A material as the file-backed engine holds it: the record it hands out and everything the record points to.
#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/ZEBMatrEngine.h"

namespace zeb {

/// The characters of one text, its terminator included.
inline constexpr std::size_t kMaterialTextSize = 255;

struct MaterialTestCurve {
  std::vector<ZEB_MTC_Entry> entries;
  std::vector<double> values;
  ZEB_MTC record{};  // points into the two above
};

/// Neither copied nor moved: the records point into their owner.
struct MaterialRecord {
  MaterialRecord() = default;
  MaterialRecord(const MaterialRecord&) = delete;
  MaterialRecord& operator=(const MaterialRecord&) = delete;

  ZebMaterial material{};
  std::array<std::array<char, kMaterialTextSize>, 7> texts{};
  std::array<std::vector<double>, 17> tables;
  std::array<double, 6> coefficients{};
  std::vector<MaterialTestCurve> testCurves;
};

/// What is wrong with a material file, and where in it.
class MaterialFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Fills `record` from the text of a material file. Throws MaterialFileError for any text that is not one; the record
/// is then good for nothing.
void parseMaterial(const std::string& json, MaterialRecord& record);

}  // namespace zeb
