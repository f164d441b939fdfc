// Deep copies of the engine's records, and the fixed order in which they travel from rank 0 to the others.
#include "material/CZEBKNMaterialParam.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

#include "engine/TextOutput.hpp"

namespace {

constexpr int kTextCount = 7;
constexpr int kTableCount = 17;
constexpr int kCoefficientRoom = 6;
constexpr int kMaxCount = 1'000'000;

constexpr std::size_t kTextSize = 255;

using Text = std::array<char, kTextSize>;

std::size_t at(int i) { return static_cast<std::size_t>(i); }

// Characters after the terminator are zeroed, so that equal texts are equal buffers.
void copyText(const char* source, Text& target) {
  target.fill('\0');
  for (std::size_t i = 0; i + 1 < target.size() && source[i] != '\0'; ++i) target[i] = source[i];
}

int usedCoefficients(int model) {
  switch (model) {
    case 1:
      return 1;
    case 2:
      return 2;
    case 3:
      return 5;
    default:
      return 0;
  }
}

int checkedCount(int count, const std::string& what) {
  if (count >= 0 && count <= kMaxCount) return count;
  zeb::writeOut("Material: the count of " + what + " (" + std::to_string(count) + ") is not between 0 and " +
                std::to_string(kMaxCount) + ", 0 is used.\n");
  return 0;
}

// A count whose values are there.
int checkedCount(int count, bool hasValues, const std::string& what) {
  const int checked = checkedCount(count, what);
  if (checked == 0 || hasValues) return checked;
  zeb::writeOut("Material: the values of " + what + " (" + std::to_string(count) + ") are missing, 0 is used.\n");
  return 0;
}

}  // namespace

// What the record's pointers lead to is owned here.
struct CZEBKNMaterialParam::Record {
  Record() {
    for (int i = 0; i < kTextCount; ++i) material.szText[i] = texts[at(i)].data();
    for (int i = 0; i < kTableCount; ++i) setTableCount(i, 0);
    material.pdCoefficient = coefficients.data();
  }
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  void setTableCount(int index, int count) {
    tables[at(index)].assign(at(count) + 1, 0.0);
    material.table[index].iCount = count;
    material.table[index].pdValue = tables[at(index)].data();
  }

  void setCurves(int count) {
    curves.assign(at(count), ZEB_MTC{});
    entries.resize(at(count));
    values.resize(at(count));
    for (int i = 0; i < count; ++i) setCurveCount(i, 0);
  }

  // No array is null, also where there are no entries.
  void setCurveCount(int index, int count) {
    entries[at(index)].assign(std::max<std::size_t>(at(count), 1), ZEB_MTC_Entry{});
    values[at(index)].assign(std::max<std::size_t>(at(count), 1), 0.0);
    curves[at(index)].iCount = count;
    curves[at(index)].pEntry = entries[at(index)].data();
    curves[at(index)].pdValue = values[at(index)].data();
  }

  ZebMaterial material{};
  std::array<Text, kTextCount> texts{};
  std::array<std::vector<double>, kTableCount> tables;
  std::array<double, kCoefficientRoom> coefficients{};
  std::vector<ZEB_MTC> curves;
  std::vector<std::vector<ZEB_MTC_Entry>> entries;  // by curve
  std::vector<std::vector<double>> values;          // by curve
};

CZEBKNMaterialParam::CZEBKNMaterialParam() : m_pCom(nullptr), m_nMtcCount(0) {}

CZEBKNMaterialParam::CZEBKNMaterialParam(const CZEBKNMaterialParam& other) = default;

CZEBKNMaterialParam::~CZEBKNMaterialParam() = default;

CZEBKNMaterialParam& CZEBKNMaterialParam::operator=(const CZEBKNMaterialParam& other) {
  if (this == &other) return *this;
  replaceRecord(other.m_record);
  m_pCom = other.m_pCom;
  m_nMtcCount = other.m_nMtcCount;
  return *this;
}

int CZEBKNMaterialParam::SetInput(std::string name, CZEBCom* communicator) {
  m_pCom = communicator;
  m_nMtcCount = 0;
  replaceRecord(std::make_shared<Record>());
  if (m_pCom == nullptr || m_pCom->GetCPUId() == 0) LoadFromEngine(name);
  if (m_pCom == nullptr) return 1;
  m_pCom->Barrier();
  if (m_pCom->GetNCPU() > 1) {
    BroadMaterialData();
    m_pCom->Broadi(m_nMtcCount);
    if (m_nMtcCount > 0) BroadMtcData();
  }
  return 1;
}

ZebMaterial* CZEBKNMaterialParam::GetZebMaterial() const { return m_record == nullptr ? nullptr : &m_record->material; }

const ZEB_MTC* CZEBKNMaterialParam::GetMtcData(int i) const {
  if (i >= m_nMtcCount) {
    zeb::writeOut("icount is exceed the maximum number of m_nMtcCount.\n");
    return nullptr;
  }
  return i < 0 ? nullptr : &m_record->curves[at(i)];
}

void CZEBKNMaterialParam::replaceRecord(std::shared_ptr<Record> next) {
  if (m_record != nullptr && m_record != next) m_earlierRecords.push_back(m_record);
  m_record = std::move(next);
}

int CZEBKNMaterialParam::LoadFromEngine(const std::string& name) {
  const std::unique_ptr<ZebMaterial, void (*)(ZebMaterial*)> engine(ZebGetMaterial(name), &ZebReleaseMaterial);
  if (engine == nullptr) {
    zeb::writeOut("Material: the engine does not know " + name + ", an empty record is used.\n");
    return 1;
  }
  CopyMaterialData(*engine);
  int unused = 0;
  int count = 0;
  ZebGetMTCInfo(engine.get(), unused, count);
  m_nMtcCount = checkedCount(count, "test curves");
  m_record->setCurves(m_nMtcCount);
  for (int i = 0; i < m_nMtcCount; ++i) {
    const ZEB_MTC* const curve = ZebGetMTCData(engine.get(), i);
    if (curve != nullptr) {
      CopyMtcParam(*curve, i);
    } else {
      zeb::writeOut("Material: the engine does not have test curve " + std::to_string(i + 1) +
                    ", an empty one is used.\n");
    }
  }
  return 1;
}

int CZEBKNMaterialParam::CopyMaterialData(const ZebMaterial& source) {
  Record& record = *m_record;
  ZebMaterial& material = record.material;
  std::copy(std::begin(source.iHeader), std::end(source.iHeader), std::begin(material.iHeader));
  for (int i = 0; i < kTextCount; ++i) {
    if (source.szText[i] != nullptr) copyText(source.szText[i], record.texts[at(i)]);
  }
  for (int i = 0; i < kTableCount; ++i) CopyMatParam(source.table[i], i);
  std::copy(std::begin(source.iModel), std::end(source.iModel), std::begin(material.iModel));
  material.dLast = source.dLast;
  const int used =
      checkedCount(usedCoefficients(source.iModel[2]), source.pdCoefficient != nullptr, "the coefficients");
  std::copy_n(source.pdCoefficient, used, record.coefficients.begin());
  return 1;
}

int CZEBKNMaterialParam::CopyMatParam(const ZebMatParam& source, int index) {
  Record& record = *m_record;
  const int count =
      checkedCount(source.iCount, source.pdValue != nullptr, "property table " + std::to_string(index + 1));
  record.setTableCount(index, count);
  record.material.table[index].iA = source.iA;
  record.material.table[index].iB = source.iB;
  std::copy_n(source.pdValue, count, record.tables[at(index)].begin());
  return 1;
}

int CZEBKNMaterialParam::CopyMtcParam(const ZEB_MTC& source, int index) {
  Record& record = *m_record;
  const bool hasValues = source.pEntry != nullptr && source.pdValue != nullptr;
  const int count = checkedCount(source.iCount, hasValues, "test curve " + std::to_string(index + 1));
  record.setCurveCount(index, count);
  record.curves[at(index)].iA = source.iA;
  record.curves[at(index)].iB = source.iB;
  std::copy_n(source.pEntry, count, record.entries[at(index)].begin());
  std::copy_n(source.pdValue, count, record.values[at(index)].begin());
  return 1;
}

int CZEBKNMaterialParam::BroadMaterialData() {
  Record& record = *m_record;
  ZebMaterial& material = record.material;
  for (int& value : material.iHeader) m_pCom->Broadi(value);

  // Six sends, each of the first text: what the ranks expect of each other, whatever the other texts hold.
  constexpr int kTextSends = 6;
  char buffers[kTextSends][kTextSize];
  for (auto& buffer : buffers) std::copy(record.texts[0].begin(), record.texts[0].end(), buffer);
  for (auto& buffer : buffers) m_pCom->Broadc(buffer);
  for (const auto& buffer : buffers) copyText(buffer, record.texts[0]);

  for (int i = 0; i < kTableCount; ++i) BroadMatParam(i);
  for (int& value : material.iModel) m_pCom->Broadi(value);
  m_pCom->Broadd(material.dLast);
  const int used = usedCoefficients(material.iModel[2]);
  for (int i = 0; i < used; ++i) m_pCom->Broadd(record.coefficients[at(i)]);
  return 1;
}

int CZEBKNMaterialParam::BroadMatParam(int index) {
  Record& record = *m_record;
  ZebMatParam& table = record.material.table[index];
  int count = table.iCount;
  m_pCom->Broadi(count);
  m_pCom->Broadi(table.iA);
  m_pCom->Broadi(table.iB);
  if (m_pCom->GetCPUId() != 0) record.setTableCount(index, count);
  for (int i = 0; i < count; ++i) m_pCom->Broadd(table.pdValue[i]);
  return 1;
}

int CZEBKNMaterialParam::BroadMtcData() {
  Record& record = *m_record;
  const bool isReceiver = m_pCom->GetCPUId() != 0;
  if (isReceiver) record.setCurves(m_nMtcCount);
  for (int index = 0; index < m_nMtcCount; ++index) {
    ZEB_MTC& curve = record.curves[at(index)];
    int count = curve.iCount;
    m_pCom->Broadi(curve.iB);
    m_pCom->Broadi(curve.iA);
    m_pCom->Broadi(count);
    if (isReceiver) record.setCurveCount(index, count);
    for (int i = 0; i < count; ++i) {
      ZEB_MTC_Entry& entry = curve.pEntry[i];
      m_pCom->Broadd(curve.pdValue[i]);
      m_pCom->Broadi(entry.iValue[0]);
      m_pCom->Broadi(entry.iValue[2]);  // the third before the second
      m_pCom->Broadi(entry.iValue[1]);
      for (double& value : entry.dValue) m_pCom->Broadd(value);
    }
  }
  return 1;
}
