// How the viscoelastic file is read: which values the head's places take, and what follows from them and from the
// blocks.
#include "viscoelastic/ViscoelasticFile.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>
#include <span>
#include <streambuf>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "engine/Format.hpp"
#include "engine/ReadObserver.hpp"
#include "engine/TextOutput.hpp"
#include "engine/ValueText.hpp"

namespace zeb {

namespace {

constexpr std::string_view kModelNames[] = {
    "White Metzner",
    "White Metzner Modified",
    "Linear Phan-Thien-Tanner",
    "Giesekus",
    "Oldroyd-B",
    "KBKZ_Wagner",
    "Exponential Phan-Thien-Tanner (Multi Mode)",
    "Giesekus (Multi Mode)",
    "Exponential Phan-Thien-Tanner",
    "Larson",
    "Larson (Multi Mode)",
    "Feta_PTT",
    "Feta_PTT (Multi Mode)",
    "Linear Phan-Thien-Tanner (Multi Mode)",
    "FENE-P",
    {},
    {},
    {},
    "Modified Extended Pom-Pom",
};

constexpr int kModelWithoutGradientModification = 6;

std::string_view modelName(int model) {
  const bool known = model >= 1 && model <= static_cast<int>(std::size(kModelNames)) &&
                     !kModelNames[static_cast<std::size_t>(model - 1)].empty();
  return known ? kModelNames[static_cast<std::size_t>(model - 1)] : "Unknown(\?\?\?\?)";  // "??)" is a trigraph
}

/// One line of the head, taken field by field.
class HeadLine {
 public:
  explicit HeadLine(LineReader& lines) {
    std::string_view line;
    lines.nextOrEmpty(line);
    m_line = line;
    m_lineNumber = lines.lineNumber();
    m_scanner = FieldScanner(m_line);
  }
  HeadLine(const HeadLine&) = delete;
  HeadLine& operator=(const HeadLine&) = delete;

  /// Leaves `value` as it is where the line has no such field (or none before it matched).
  template <class Value>
  void take(Value& value) {
    const std::string_view before = m_scanner.rest();
    if (m_scanner.next(value)) ++m_converted;
    m_fields[m_taken++] = before.substr(0, before.size() - m_scanner.rest().size());
  }

  const std::string& text() const { return m_line; }
  int lineNumber() const { return m_lineNumber; }
  std::string_view rest() const { return m_scanner.rest(); }
  int taken() const { return m_taken; }
  int converted() const { return m_converted; }
  /// Field 1 is the first; empty where the line has none.
  std::string_view field(int number) const { return m_fields[number - 1]; }

 private:
  std::string m_line;
  int m_lineNumber = 0;
  FieldScanner m_scanner{std::string_view()};
  std::string_view m_fields[3];
  int m_taken = 0;
  int m_converted = 0;
};

}  // namespace

struct ViscoelasticReader {
  CZEBCMPVEParm& block;
  LineReader& lines;
  // A short line leaves here what an earlier line held, and that then counts for it.
  double scratch[3] = {};

  static bool isWanted(const CZEBCMPVEParm& candidate) { return candidate.m_bIstoCalcRS; }

  static std::span<const Section> sections() { return tableOf<CZEBCMPVEParm>().sections; }
  static const Section& head() { return sections().front(); }

  static void GetVEModelName(int model) { writeOut(std::string(modelName(model)) + " model"); }

  bool read() {
    if (!readHead()) return false;
    std::vector<DispatchEntry> tagBlocks;
    for (const Section& section : sections().subspan(1)) tagBlocks.push_back({&section, &block});
    readLines(tagBlocks, lines);
    return true;
  }

  // --- The head ---------------------------------------------------------------------------------------------------

  bool readHead() {
    if (lines.observer() != nullptr) [[unlikely]] {
      lines.observer()->sectionOpened(head(), &block, 0, {});
    }
    if (!versionMatches()) return false;
    for (int number = 2; number <= 7; ++number) readBounds(number);
    return readModelLines();
  }

  bool versionMatches() {
    HeadLine line(lines);
    int version = 0;
    line.take(version);
    finish(line, 1);
    if (version != block.m_iVECMPVersion) return refuse(1, "line 1 does not hold the version of this file format");
    report(*rowAt({1, 1}), line, 1, KeyOutcome::kStored);
    return true;
  }

  void readBounds(int number) {
    HeadLine line(lines);
    const int fields = number == 5 ? 2 : 3;
    for (int field = 0; field < fields; ++field) line.take(scratch[field]);
    finish(line, number);
    for (int field = 1; field <= fields; ++field) {
      const Row* row = rowAt({static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(field)});
      if (row == nullptr) continue;
      const double value = scratch[field - 1];
      const bool taken = value > row->rule.takenAbove;
      if (taken) row->field.in<double>(&block) = row->rule.apply(value);
      if (taken || field <= line.converted()) {
        report(*row, line, field, taken ? KeyOutcome::kStored : KeyOutcome::kNotTaken, {value});
      }
    }
  }

  // Where line 8 is short, the model and the weight stay as they are; a missing line 9 confirms nothing.
  bool readModelLines() {
    HeadLine line(lines);
    int model = block.m_iVEModel;
    double weight = block.m_dSmoothFactor;
    int plotMode = 0;
    line.take(model);
    line.take(weight);
    line.take(plotMode);
    finish(line, 8);

    HeadLine confirmationLine(lines);
    int confirmation = -1;
    confirmationLine.take(confirmation);
    finish(confirmationLine, 9);

    if (!switchModel(model, confirmation)) return false;
    smooth(weight);
    if (plotMode == 1 || plotMode == 2) block.m_bPlotMaterialFun = true;
    if (plotMode == 2) block.m_bPlotMaterialFun_ideal = true;
    reportModelLine(line, plotMode);
    if (lines.observer() != nullptr) [[unlikely]] {
      lines.observer()->sectionEnded(head(), SectionEnd::kComplete);
    }
    return true;
  }

  bool switchModel(int model, int confirmation) {
    if (model == block.m_iVEModel) return true;
    if (model < 0 || model > block.m_iNVE_Model) return refuse(8, "line 8 holds no valid number of a model");
    if (confirmation < 0) return refuse(9, "line 9 does not confirm the change of the model");
    const int before = std::exchange(block.m_iVEModel, model);
    if (!lines.source().reads()) return true;
    writeOut("Switch from ");
    GetVEModelName(before);
    writeOut(" to ");
    GetVEModelName(model);
    return true;
  }

  void smooth(double weight) {
    const bool smooths = weight > 0.01;
    block.m_bModifyGradient = smooths && block.m_iVEModel != kModelWithoutGradientModification;
    block.m_dSmoothFactor = smooths ? std::min(weight, 1.0) : 0.0;
  }

  // --- What an observer is told -----------------------------------------------------------------------------------

  /// Of the members in that place the first; null where nothing is kept.
  static const Row* rowAt(Position at) {
    const auto stands = [at](const Row& row) { return row.at[0].line == at.line && row.at[0].field == at.field; };
    const auto found = std::find_if(head().rows.begin(), head().rows.end(), stands);
    return found == head().rows.end() ? nullptr : &*found;
  }

  void report(const Row& row, const HeadLine& line, int field, KeyOutcome outcome, Parsed parsed = {}) const {
    if (lines.observer() == nullptr) [[likely]] {
      return;
    }
    lines.observer()->keyFound(
        {head(), row, &block, {}, line.text(), line.field(field), {}, line.lineNumber(), outcome, parsed});
  }

  void reportModelLine(const HeadLine& line, int plotMode) const {
    if (lines.observer() == nullptr) [[likely]] {
      return;
    }
    for (const Row& row : head().rows) {
      const Position at = row.at[0];
      if (at.line != 8 || at.field > line.converted()) continue;
      const void* member = row.field.locate(&block);
      if (member == &block.m_bPlotMaterialFun && plotMode != 1 && plotMode != 2) continue;
      if (member == &block.m_bPlotMaterialFun_ideal && plotMode != 2) continue;
      report(row, line, at.field, KeyOutcome::kStored);
    }
  }

  bool refuse(int lineNumber, std::string_view reason) const {
    if (lines.observer() != nullptr) [[unlikely]] {
      lines.observer()->fileRefused(lineNumber, reason);
    }
    return false;
  }

  void finish(const HeadLine& line, int number) const {
    if (lines.observer() == nullptr) [[likely]] {
      return;
    }
    lines.observer()->linePositional(number, line.converted(), line.taken(), line.rest());
  }
};

namespace {

/// Delivers the lines of a file's head, which it takes at once, and then the rest of the file.
class HeadFirst final : public std::streambuf {
 public:
  /// False when reading fails within the head.
  bool takeHead(std::istream& file) {
    m_file = file.rdbuf();
    const LineSource source{};
    for (std::string line; m_lines < kHeadLines && source.getLine(file, line) == 1; ++m_lines) m_text += line + '\n';
    deliver();
    return !file.bad();
  }

  /// Of the head, as far as it was taken.
  int lines() const { return m_lines; }

 protected:
  int_type underflow() override {
    if (traits_type::eq_int_type(m_file->sgetc(), traits_type::eof())) return traits_type::eof();
    m_text.resize(static_cast<std::size_t>(std::clamp<std::streamsize>(m_file->in_avail(), 1, kAtOnce)));
    m_text.resize(static_cast<std::size_t>(m_file->sgetn(m_text.data(), std::ssize(m_text))));
    deliver();
    return traits_type::to_int_type(m_text.front());
  }

 private:
  static constexpr int kHeadLines = 9;
  static constexpr std::streamsize kAtOnce = 1 << 14;

  void deliver() { setg(m_text.data(), m_text.data(), m_text.data() + m_text.size()); }

  std::streambuf* m_file = nullptr;
  std::string m_text;
  int m_lines = 0;
};

/// The file as rank 0 finds it; the other ranks learn only whether it is open.
struct Companion {
  std::ifstream file;
  HeadFirst text;
  std::istream stream{&text};
  enum { kOpen, kMissing, kFailed } state = kMissing;

  void open(const std::string& fileName) {
    std::error_code unknown;
    // Asked first: a file that appears behind a failed opening is one that the default does not replace.
    const auto before = std::filesystem::symlink_status(fileName, unknown).type();
    if (openFile(file, fileName) != 1) {
      state = before == std::filesystem::file_type::not_found ? kMissing : kFailed;
      if (state == kFailed) say("Cannot open " + fileName);
      return;
    }
    state = text.takeHead(file) ? kOpen : kFailed;
    if (state == kFailed) {
      say("Reading " + fileName + " failed behind line " + std::to_string(text.lines()));
    }
  }

 private:
  static void say(const std::string& what) {
    writeOut("Error! " + what + "; nothing of it is taken, and it stays as it is.\n");
  }
};

}  // namespace

bool wantsViscoelasticFile(const CZEBCMPVEParm& block) { return ViscoelasticReader::isWanted(block); }

int readViscoelasticLines(std::istream& stream, CZEBCMPVEParm& block, const LineSource& source,
                          ReadObserver* observer) {
  LineReader lines(stream, source, observer);
  if (ViscoelasticReader{block, lines}.read()) return 1;
  block.InitBoundingParameters();
  return -1;
}

int readViscoelasticFile(const std::string& fileName, CZEBCMPVEParm& block, const LineSource& source,
                         ReadObserver* observer, bool writesDefault) {
  if (observer != nullptr) observer->fileStarted(fileName);
  Companion companion;
  if (source.reads()) {
    if (source.com != nullptr && source.printLevel > 0) writeOut("VE CMP file name = " + fileName + "\n");
    companion.open(fileName);
  }
  int opened = companion.state == Companion::kOpen ? 1 : -1;
  if (source.com != nullptr) source.com->Broadi(opened);
  if (opened == 1) {
    if (readViscoelasticLines(companion.stream, block, source, observer) == 1) return 1;
    companion.file.close();
  } else {
    const bool isMissing = companion.state == Companion::kMissing;
    if (observer != nullptr) observer->fileRefused(0, isMissing ? "the file cannot be opened" : kUnreadable);
    block.InitBoundingParameters();
  }
  const bool replaces = source.reads() && companion.state != Companion::kFailed;
  if (writesDefault && replaces) writeDefaultViscoelasticFile(fileName, block);
  return -1;
}

}  // namespace zeb
