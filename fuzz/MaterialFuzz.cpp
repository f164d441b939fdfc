// A material file through the engine's parser, or a record that no decent engine would hand out, distributed to ranks.
//
// Byte 1: the switches below. Then the JSON text, or the bytes of the record.
#include <cmath>
#include <cstring>
#include <memory>

#include "fuzz/FuzzSupport.hpp"
#include "material/CZEBKNMaterialParam.h"
#include "standalone/MaterialRecord.hpp"
#include "tests/support/RecordingCommunicator.h"

namespace {

using namespace zebfuzz;

constexpr int kTables = 17;
constexpr int kTexts = 7;
constexpr int kLargestCount = 1'000'000;
constexpr int kUsed[] = {0, 1, 2, 5};  // coefficients by the third model value

int usedCoefficients(int model) { return model >= 1 && model <= 3 ? kUsed[model] : 0; }

struct Engine {
  bool mayBeAsked = true;
  bool knowsMaterial = false;
  int loaded = 0;
  int released = 0;
  zeb::MaterialRecord record;
  int reportedCurves = 0;
  std::vector<const ZEB_MTC*> curves;  // null: the engine has none for this number
};

Engine* engine = nullptr;

void loadJson(std::string_view json, Engine& made) {
  try {
    zeb::parseMaterial(std::string(json), made.record);
  } catch (const zeb::MaterialFileError& error) {
    const std::string message = error.what();
    require(!message.empty() && message.find('\n') == message.npos, "an error is not one line");
    return;
  }
  made.knowsMaterial = true;
  for (const zeb::MaterialTestCurve& curve : made.record.testCurves) made.curves.push_back(&curve.record);
  made.reportedCurves = static_cast<int>(made.curves.size());
}

// Counts small enough to be true, or hostile ones; a hostile one never has an array.
int count(Bytes& bytes, bool& isTrue) {
  const unsigned choice = bytes.byte();
  isTrue = choice < 240;
  if (isTrue) return static_cast<int>(choice % 8);
  constexpr int kHostile[] = {-1, -2147483647 - 1, 2147483647, kLargestCount + 1, 5};
  return kHostile[choice % 5];
}

void loadBytes(Bytes bytes, Engine& made) {
  made.knowsMaterial = true;
  ZebMaterial& material = made.record.material;
  for (int& value : material.iHeader) value = bytes.int32();
  for (int i = 0; i < kTexts; ++i) {
    const unsigned length = bytes.byte() % 64 * 5;  // up to 315: longer than a text's room
    auto& text = made.record.tables[static_cast<std::size_t>(i)];
    text.assign(length / sizeof(double) + 2, 0.0);
    std::memset(text.data(), 'a' + i, length);
    material.szText[i] = length == 5 ? nullptr : reinterpret_cast<char*>(text.data());
  }
  static double values[8] = {1.0, -0.0, 3.5e300, 0.25, -7.0, 1e-310, 6.0, 0.0};
  for (ZebMatParam& table : material.table) {
    table.iA = bytes.int32();
    table.iB = static_cast<int>(bytes.byte());
    bool isTrue = false;
    table.iCount = count(bytes, isTrue);
    table.pdValue = isTrue ? values : nullptr;
  }
  for (int& value : material.iModel) value = static_cast<int>(bytes.byte() % 6) - 1;
  made.record.coefficients[0] = bytes.real();
  material.pdCoefficient = bytes.byte() % 4 == 0 ? nullptr : made.record.coefficients.data();
  material.dLast = bytes.real();
  bool isTrue = false;
  made.reportedCurves = count(bytes, isTrue);
  if (!isTrue && made.reportedCurves != 5) return;
  made.record.testCurves.resize(static_cast<std::size_t>(made.reportedCurves));
  for (zeb::MaterialTestCurve& curve : made.record.testCurves) {
    curve.record.iA = bytes.int32();
    curve.record.iB = static_cast<int>(bytes.byte());
    curve.record.iCount = count(bytes, isTrue);
    const std::size_t room = isTrue ? static_cast<std::size_t>(curve.record.iCount) : 0;
    curve.entries.assign(room, ZEB_MTC_Entry{{1, 2, static_cast<int>(bytes.byte())}, {0.5, 0.25}});
    curve.values.assign(room, bytes.real());
    curve.record.pEntry = room == 0 ? nullptr : curve.entries.data();
    curve.record.pdValue = room == 0 ? nullptr : curve.values.data();
    made.curves.push_back(bytes.byte() % 8 == 0 ? nullptr : &curve.record);
  }
}

int checkedCount(int stated, bool hasValues) { return stated < 0 || stated > kLargestCount || !hasValues ? 0 : stated; }

// The sequence of sends, written down from the record that the engine holds.
zeb::CallLog plainProtocol(const Engine& source) {
  zeb::CallLog log;
  const ZebMaterial empty{};
  const ZebMaterial& material = source.knowsMaterial ? source.record.material : empty;
  log.addBarrier();
  for (const int value : material.iHeader) log.addInt(value);
  char text[zeb::kCallTextSize] = {};
  if (material.szText[0] != nullptr) std::strncpy(text, material.szText[0], sizeof text - 1);
  for (int i = 0; i < 6; ++i) log.addText(text);
  for (const ZebMatParam& table : material.table) {
    const int length = checkedCount(table.iCount, table.pdValue != nullptr);
    log.addInt(length);
    log.addInt(table.iA);
    log.addInt(table.iB);
    for (int i = 0; i < length; ++i) log.addDouble(table.pdValue[i]);
  }
  for (const int value : material.iModel) log.addInt(value);
  log.addDouble(material.dLast);
  for (int i = 0; i < usedCoefficients(material.iModel[2]); ++i) {
    log.addDouble(material.pdCoefficient == nullptr ? 0.0 : material.pdCoefficient[i]);
  }
  const int curves = source.knowsMaterial ? checkedCount(source.reportedCurves, true) : 0;
  log.addInt(curves);
  for (int c = 0; c < curves; ++c) {
    const ZEB_MTC none{};
    const auto number = static_cast<std::size_t>(c);
    const bool exists = number < source.curves.size() && source.curves[number] != nullptr;
    const ZEB_MTC& curve = exists ? *source.curves[number] : none;
    const int entries = checkedCount(curve.iCount, curve.pEntry != nullptr && curve.pdValue != nullptr);
    log.addInt(curve.iB);
    log.addInt(curve.iA);
    log.addInt(entries);
    for (int e = 0; e < entries; ++e) {
      log.addDouble(curve.pdValue[e]);
      log.addInt(curve.pEntry[e].iValue[0]);
      log.addInt(curve.pEntry[e].iValue[2]);
      log.addInt(curve.pEntry[e].iValue[1]);
      for (const double value : curve.pEntry[e].dValue) log.addDouble(value);
    }
  }
  return log;
}

bool sameDoubles(const double* a, const double* b, int length) {
  return length == 0 || std::memcmp(a, b, static_cast<std::size_t>(length) * sizeof(double)) == 0;
}

// Texts 2 to 7 are not distributed: rank 1 holds none.
void requireEqualRecords(const CZEBKNMaterialParam& rank0, const CZEBKNMaterialParam& rank1, int curves) {
  const ZebMaterial& a = *rank0.GetZebMaterial();
  const ZebMaterial& b = *rank1.GetZebMaterial();
  require(std::memcmp(a.iHeader, b.iHeader, sizeof a.iHeader) == 0, "headers differ");
  require(std::strcmp(a.szText[0], b.szText[0]) == 0, "the first texts differ");
  for (int i = 1; i < kTexts; ++i) require(b.szText[i][0] == '\0', "rank 1 holds a text that nobody sent");
  for (int i = 0; i < kTables; ++i) {
    const ZebMatParam& x = a.table[i];
    const ZebMatParam& y = b.table[i];
    require(x.iA == y.iA && x.iB == y.iB && x.iCount == y.iCount, "tables differ");
    require(x.iCount >= 0 && x.iCount <= kLargestCount, "a table's count");
    require(sameDoubles(x.pdValue, y.pdValue, x.iCount), "the values of tables differ");
  }
  require(std::memcmp(a.iModel, b.iModel, sizeof a.iModel) == 0, "models differ");
  require(sameDoubles(a.pdCoefficient, b.pdCoefficient, 6), "coefficients differ");
  require(sameDoubles(&a.dLast, &b.dLast, 1), "the last values differ");
  for (int i = 0; i < curves; ++i) {
    const ZEB_MTC& x = *rank0.GetMtcData(i);
    const ZEB_MTC& y = *rank1.GetMtcData(i);
    require(x.iA == y.iA && x.iB == y.iB && x.iCount == y.iCount, "test curves differ");
    require(sameDoubles(x.pdValue, y.pdValue, x.iCount), "the values of test curves differ");
    for (int e = 0; e < x.iCount; ++e) {
      require(std::memcmp(x.pEntry[e].iValue, y.pEntry[e].iValue, sizeof x.pEntry[e].iValue) == 0 &&
                  sameDoubles(x.pEntry[e].dValue, y.pEntry[e].dValue, 21),
              "entries differ");
    }
  }
  Output::drop();
  require(rank0.GetMtcData(curves) == nullptr && rank1.GetMtcData(-1) == nullptr, "a curve that does not exist");
  require(Output::take() == "icount is exceed the maximum number of m_nMtcCount.\n", "the message of a wrong number");
}

void check(Engine& source, bool loadsTwice, bool comparesSerial) {
  engine = &source;
  const zeb::CallLog expected = plainProtocol(source);
  CZEBKNMaterialParam rank0;
  zeb::RecordingCommunicator recorder(2);
  require(rank0.SetInput("fuzz", &recorder) == 1, "SetInput");
  if (loadsTwice) {
    recorder.clear();
    require(rank0.SetInput("fuzz", &recorder) == 1, "SetInput again");
  }
  require(recorder.log() == expected, "the sends are not those of the protocol");

  source.mayBeAsked = false;
  CZEBKNMaterialParam rank1;
  zeb::ReplayingCommunicator player(recorder.log(), 1, 2, zeb::OnMismatch::kAbort);
  require(rank1.SetInput("fuzz", &player) == 1, "SetInput");
  require(player.finished(), "rank 1 stopped too early");
  source.mayBeAsked = true;
  requireEqualRecords(rank0, rank1, source.knowsMaterial ? checkedCount(source.reportedCurves, true) : 0);

  if (comparesSerial) {
    CZEBKNMaterialParam serial;
    require(serial.SetInput("fuzz", nullptr) == 1, "SetInput");
    rank1 = serial;
    require(rank1.GetZebMaterial() == serial.GetZebMaterial(), "a copy does not share the record");
    require(std::memcmp(serial.GetZebMaterial()->iHeader, rank0.GetZebMaterial()->iHeader, sizeof(int[6])) == 0,
            "a serial run differs");
  }
  require(source.loaded == source.released, "the engine's material was not released once");
  engine = nullptr;
}

}  // namespace

// The engine of this program, in place of the file-backed one.
ZebMaterial* ZebGetMaterial(const std::string&) {
  require(engine != nullptr && engine->mayBeAsked, "a rank other than 0 asked the engine");
  if (!engine->knowsMaterial) return nullptr;
  ++engine->loaded;
  return &engine->record.material;
}

int ZebGetMTCInfo(ZebMaterial*, int& unused, int& count) {
  unused = 12345;
  count = engine->reportedCurves;
  return 1;
}

const ZEB_MTC* ZebGetMTCData(ZebMaterial*, int index) {
  require(index >= 0 && index < engine->reportedCurves, "the engine is asked for a curve that it does not have");
  const auto number = static_cast<std::size_t>(index);
  return number < engine->curves.size() ? engine->curves[number] : nullptr;
}

void ZebReleaseMaterial(ZebMaterial* material) {
  require(engine != nullptr && material == &engine->record.material, "something else is released");
  ++engine->released;
}

void zebfuzz::checkInput(Bytes bytes) {
  const unsigned switches = bytes.byte();
  auto source = std::make_unique<Engine>();
  if ((switches & 4u) == 0) {
    loadJson(bytes.rest(), *source);
  } else {
    loadBytes(bytes, *source);
  }
  check(*source, (switches & 1u) != 0, (switches & 2u) != 0);
}
