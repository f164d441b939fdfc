// The default viscoelastic file: its text, and how it gets into its place whole or not at all.
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "engine/TextOutput.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

namespace zeb {

namespace {

constexpr double kDynPerCm2InMPa = 1e7;

constexpr std::string_view kDefaultTagBlocks =
    "<VE_Solver>\n"
    "VE_Para1 = 0.7 \n"
    "</VE_Solver>\n"
    "\n\n"
    "<WhiteMetzner_Gai>\n"
    "WM_Switch = 1 \n"
    "WM_Para1  = 0.1 \n"
    "WM_Para2  = 0.8 \n"
    "</WhiteMetzner_Gai>\n"
    "\n\n"
    "<PLOT_MATERIAL>\n"
    "FlagIsPlotShearVis  = 0 \n"
    "FlagIsPlotElongVis  = 0 \n"
    "RefTemperature      = 200 \n"
    "DeltaTemperature    = 20  \n"
    "DeltaTime           = 0.01 \n"
    "TargetTime          = 20  \n"
    "SRateLowerBound     = 0.01 \n"
    "SRateUpperBound     = 1000 \n"
    "</PLOT_MATERIAL>\n"
    "\n\n"
    "<PLOT_TRANSIENT_SHEAR_MATERIAL>\n"
    "FlagIsPlotShearVis_Transient  = 0 \n"
    "RefTemperature                = 200 \n"
    "DeltaTemperature              = 20  \n"
    "DeltaTime                     = 0.01 \n"
    "TargetTime                    = 200  \n"
    "SRateLowerBound               = 0.01 \n"
    "SRateUpperBound               = 10 \n"
    "TotalSetofInputSRate          = -1 \n"
    "ShearRate                     = 0.01 \n"
    "</PLOT_TRANSIENT_SHEAR_MATERIAL>\n"
    "\n\n"
    "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\n"
    "FlagIsPlotElongVis_Transient  = 0 \n"
    "RefTemperature                = 200 \n"
    "DeltaTemperature              = 20  \n"
    "DeltaTime                     = 0.01 \n"
    "TargetTime                    = 200  \n"
    "SRateLowerBound               = 0.01 \n"
    "SRateUpperBound               = 10 \n"
    "TotalSetofInputSRate          = -1 \n"
    "StrainRate                    = 0.01 \n"
    "</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n"
    "\n";

std::string headLine(std::initializer_list<double> values) {
  std::string line;
  for (const double value : values) {
    if (!line.empty()) line += ' ';
    line += formatFixed(value);
  }
  return line + '\n';
}

// The lower temperature bound stands as 0, which the reader ignores, so it always follows the temperature point; and
// the confirmation is -1, so that whoever changes the model must change that line, too.
std::string defaultText(const CZEBCMPVEParm& block) {
  const double stress = block.getCtrlParam_StressUpBond() / kDynPerCm2InMPa;
  const double pressure = block.getCtrlParam_PackPressureLowBond() / kDynPerCm2InMPa;
  std::string text = std::to_string(block.getVECMPVersion()) + '\n';
  text += headLine({0.0, block.getCtrlParam_ModifyLamdaLowT(), 0.0});
  text += headLine({block.getCtrlParam_ShrateUpBond1(), block.getCtrlParam_ModifyLamdaShrateUB(),
                    block.getCtrlParam_ShrateUpBond2()});
  text += headLine({stress, block.getCtrlParam_ModifyLamdaStressUB(), stress});
  text += headLine({block.getCtrlParam_FreezeLamda(), block.getCtrlParam_FreezeViscosity()});
  text += headLine({pressure, block.getCtrlParam_PackShrateUpBond(), pressure});
  text += headLine({block.getCtrlParam_ShrateLowBond1(), block.getCtrlParam_ModifyLamdaShrateLB(),
                    block.getCtrlParam_ShrateLowBond2()});
  text += std::to_string(block.getVEModel()) + ' ' + formatFixed(block.getGradientParam_SmoothFactor()) + " 0\n";
  text += "-1\n\n";
  text += kDefaultTagBlocks;
  return text;
}

/// A file of its own, beside the one that it is to replace; it is gone when this goes, unless it was moved.
class TemporaryFile {
 public:
  // Exclusive creation: two jobs that write at the same time get two files.
  explicit TemporaryFile(const std::string& target) {
    constexpr int kAttempts = 100;
    for (int number = 0; number < kAttempts && m_file == nullptr; ++number) {
      m_name = target + ".tmp" + std::to_string(number);
      errno = 0;
      m_file = std::fopen(m_name.c_str(), "wbx");
      if (m_file == nullptr && errno != EEXIST) return;
    }
    m_exists = m_file != nullptr;
  }
  ~TemporaryFile() {
    if (m_file != nullptr) std::fclose(m_file);
    if (m_exists) std::remove(m_name.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// True when every byte has reached the file.
  bool write(const std::string& text) {
    if (m_file == nullptr) return false;
    const bool written = std::fwrite(text.data(), 1, text.size(), m_file) == text.size();
    return std::fclose(std::exchange(m_file, nullptr)) == 0 && written;
  }

  /// This job's alone as long as the file stands there.
  const std::string& name() const { return m_name; }

  /// Replaces a file of that name in one step.
  bool moveTo(const std::string& target) {
    std::error_code error;
    std::filesystem::rename(m_name, target, error);
    if (!error) m_exists = false;
    return !error;
  }

 private:
  std::string m_name;
  std::FILE* m_file = nullptr;
  bool m_exists = false;
};

bool holds(const std::string& fileName, const std::string& text) {
  std::ifstream file(fileName, std::ios::binary);
  std::string content(text.size() + 1, '\0');
  file.read(content.data(), static_cast<std::streamsize>(content.size()));
  return file.gcount() == static_cast<std::streamsize>(text.size()) && content.compare(0, text.size(), text) == 0;
}

// What this library writes for a model before anyone edits it.
bool isUntouchedDefault(const std::string& fileName) {
  constexpr int kLastModel = 19;
  CZEBCMPVEParm block;
  for (int model = 0; model <= kLastModel; ++model) {
    block.setVEModel(model);
    block.InitBoundingParameters();
    if (holds(fileName, defaultText(block))) return true;
  }
  return false;
}

// By now another job may have put its default under the user's name, and a look at the name followed by a rename of it
// could push that default over the user's file in the backup. So the file gets a second name, `link`, that no other job
// touches; what is looked at and what becomes the backup is then the same file. The user's name never stands empty.
bool backUp(const std::string& fileName, const std::string& link, const std::string& text) {
  std::error_code error, ignored;
  std::filesystem::create_hard_link(fileName, link, error);
  if (error) std::filesystem::copy_file(fileName, link, error);  // a file system without links
  if (!error && !holds(link, text) && !isUntouchedDefault(link)) {
    std::filesystem::rename(link, fileName + ".bak", error);
  }
  // A rename does nothing where the backup is a link to the same file already.
  std::filesystem::remove(link, ignored);
  return !error;
}

bool putFile(const std::string& fileName, const std::string& text) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(fileName, error);
  const bool exists = std::filesystem::exists(status);
  // A device or a folder of that name is nobody's parameter file; it is not replaced.
  if (exists && !std::filesystem::is_regular_file(status)) return false;
  if (exists && holds(fileName, text)) return true;
  TemporaryFile file(fileName);
  if (!file.write(text)) return false;
  if (exists && !backUp(fileName, file.name() + ".bak", text)) return false;
  return file.moveTo(fileName);
}

}  // namespace

int writeDefaultViscoelasticFile(const std::string& fileName, const CZEBCMPVEParm& block) {
  if (putFile(fileName, defaultText(block))) return 1;
  writeOut("Can not open viscoelastic cmp file! \n");
  return -1;
}

}  // namespace zeb
