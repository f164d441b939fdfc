// The default viscoelastic file: its text, and how it gets into its place whole or not at all.
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <system_error>

#include "engine/FixedText.hpp"
#include "engine/TextOutput.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

namespace zeb {

namespace {

constexpr double kDynPerCm2InMPa = 1e7;

// Of both transient blocks.
constexpr FixedText kTransientRange(
    "RefTemperature                = 200 \n"
    "DeltaTemperature              = 20  \n"
    "DeltaTime                     = 0.01 \n"
    "TargetTime                    = 200  \n"
    "SRateLowerBound               = 0.01 \n"
    "SRateUpperBound               = 10 \n"
    "TotalSetofInputSRate          = -1 \n");

constexpr auto kDefaultTagBlocks = FixedText(
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
                                       "FlagIsPlotShearVis_Transient  = 0 \n") +
                                   kTransientRange +
                                   FixedText(
                                       "ShearRate                     = 0.01 \n"
                                       "</PLOT_TRANSIENT_SHEAR_MATERIAL>\n"
                                       "\n\n"
                                       "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\n"
                                       "FlagIsPlotElongVis_Transient  = 0 \n") +
                                   kTransientRange +
                                   FixedText(
                                       "StrainRate                    = 0.01 \n"
                                       "</PLOT_TRANSIENT_EXTENSION_MATERIAL>\n"
                                       "\n");

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
  text += kDefaultTagBlocks.view();
  return text;
}

// --- Files beside it ----------------------------------------------------------------------------------------------

namespace fs = std::filesystem;

// Between `name` and the process: several hosts may share the folder, and a number says something on one of them only.
std::string ofThisHost(const std::string& name) {
  char host[256] = {};
  return name + '.' + (gethostname(host, sizeof host - 1) == 0 ? host : "") + '.';
}

std::string ofThisProcess(const std::string& name) { return ofThisHost(name) + std::to_string(getpid()); }

/// Makes an empty file that was not there: `name`, or with .1, .2, ... behind it. Returns its name, empty on a failure.
std::string reserve(const std::string& name) {
  for (int number = 0;; ++number) {
    const std::string candidate = number == 0 ? name : name + '.' + std::to_string(number);
    errno = 0;
    if (std::FILE* const file = std::fopen(candidate.c_str(), "wbx")) {
      std::fclose(file);
      return candidate;
    }
    if (errno != EEXIST) return {};
  }
}

/// Writes and closes; true when every byte has reached the file.
bool write(std::FILE* file, const std::string& text) {
  if (file == nullptr) return false;
  const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
  return std::fclose(file) == 0 && written;
}

void removeQuietly(const fs::path& name) {
  std::error_code ignored;
  fs::remove(name, ignored);
}

/// A reserved name; its file is gone when this goes.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& name) : m_name(reserve(name)) {}
  ~TemporaryFile() {
    if (!m_name.empty()) removeQuietly(m_name);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& name() const { return m_name; }

 private:
  std::string m_name;
};

std::string temporaryName(const std::string& target) { return target + ".tmp"; }

/// Whether a file's name is `prefix` and a process that lives no more, as reserve(ofThisProcess()) makes them.
bool isOfDeadProcess(std::string_view name, std::string_view prefix) {
  if (!name.starts_with(prefix)) return false;
  const char* const end = name.data() + name.size();
  int process = 0, number = 0;
  auto parsed = std::from_chars(name.data() + prefix.size(), end, process);
  if (process <= 0) return false;
  if (parsed.ptr != end && *parsed.ptr == '.') parsed = std::from_chars(parsed.ptr + 1, end, number);
  if (parsed.ec != std::errc() || parsed.ptr != end) return false;
  return kill(process, 0) != 0 && errno == ESRCH;
}

// The hour is for a process that another container's numbers hide from this one.
void removeLeftovers(const std::string& target) {
  const fs::path path(target);
  const std::string prefix = ofThisHost(temporaryName(path.filename().string()));
  const fs::file_time_type limit = fs::file_time_type::clock::now() - std::chrono::hours(1);
  std::error_code error;
  for (fs::directory_iterator entry(path.has_parent_path() ? path.parent_path() : ".", error), end;
       !error && entry != end; entry.increment(error)) {
    if (!isOfDeadProcess(entry->path().filename().string(), prefix)) continue;
    std::error_code unknown;
    if (entry->last_write_time(unknown) < limit && !unknown) removeQuietly(entry->path());
  }
}

// --- The file's place ---------------------------------------------------------------------------------------------

// No more than any default text has; empty where the file cannot be read.
std::string contentOf(const std::string& fileName) {
  constexpr std::size_t kLongest = 1 << 14;
  std::string content(kLongest, '\0');
  std::ifstream file(fileName, std::ios::binary);
  file.read(content.data(), static_cast<std::streamsize>(content.size()));
  content.resize(static_cast<std::size_t>(file.gcount()));
  return content;
}

// What this library writes for a model before anyone edits it.
bool isUntouchedDefault(const std::string& content) {
  constexpr int kLastModel = 19;
  CZEBCMPVEParm block;
  for (int model = 0; model <= kLastModel; ++model) {
    block.setVEModel(model);
    block.InitBoundingParameters();
    if (content == defaultText(block)) return true;
  }
  return false;
}

/// Puts the text where no file is; one that has appeared there meanwhile stays. `temporary` holds the text.
bool putWhereNoneIs(const std::string& fileName, const std::string& temporary, const std::string& text) {
  std::error_code error;
  fs::create_hard_link(temporary, fileName, error);
  if (!error || error == std::errc::file_exists) return true;
  errno = 0;  // a file system without links
  std::FILE* const file = std::fopen(fileName.c_str(), "wbx");
  if (file == nullptr) return errno == EEXIST;
  const bool written = write(file, text);
  if (!written) removeQuietly(fileName);
  return written;
}

// A look at the name followed by a rename onto it would push out what somebody saves in between. So whatever has the
// name is taken away first, under a name that nobody else touches, and then looked at; and what takes its place takes a
// place that is empty. A process that dies in between leaves the user's file under that name.
bool replace(const std::string& fileName, const std::string& temporary, const std::string& text) {
  const std::string taken = reserve(ofThisProcess(fileName + ".old"));
  if (taken.empty()) return false;
  std::error_code error;
  fs::rename(fileName, taken, error);
  if (error) {
    removeQuietly(taken);
    const bool anotherJobTookIt = error == std::errc::no_such_file_or_directory;
    return anotherJobTookIt && putWhereNoneIs(fileName, temporary, text);
  }
  if (!putWhereNoneIs(fileName, temporary, text)) {
    fs::rename(taken, fileName, error);
    return false;
  }
  if (isUntouchedDefault(contentOf(taken))) {
    removeQuietly(taken);
    return true;
  }
  const std::string backup = reserve(fileName + ".bak");
  if (!backup.empty()) fs::rename(taken, backup, error);
  return true;
}

bool putFile(const std::string& fileName, const std::string& text) {
  std::error_code error;
  fs::file_status found = fs::status(fileName, error);
  if (!fs::exists(found)) found = fs::symlink_status(fileName, error);  // a link that leads nowhere is there, too
  const bool exists = fs::exists(found);
  // A device or a folder of that name is nobody's parameter file; it is not replaced.
  if (exists && !fs::is_regular_file(found)) return false;
  if (exists && contentOf(fileName) == text) return true;
  removeLeftovers(fileName);
  const TemporaryFile file(ofThisProcess(temporaryName(fileName)));
  if (file.name().empty() || !write(std::fopen(file.name().c_str(), "wb"), text)) return false;
  return exists ? replace(fileName, file.name(), text) : putWhereNoneIs(fileName, file.name(), text);
}

}  // namespace

int writeDefaultViscoelasticFile(const std::string& fileName, const CZEBCMPVEParm& block) {
  if (putFile(fileName, defaultText(block))) return 1;
  writeOut("Can not open viscoelastic cmp file! \n");
  return -1;
}

}  // namespace zeb
