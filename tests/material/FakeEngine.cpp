// The engine's functions, defined in the test program itself: they take precedence over those of any library.
#include "tests/material/FakeEngine.h"

#include <algorithm>
#include <stdexcept>

namespace {

FakeEngine* theEngine = nullptr;

FakeEngine& engineOf(const ZebMaterial* material) {
  if (theEngine == nullptr || material != &theEngine->material) throw std::logic_error("not the engine's material");
  return *theEngine;
}

}  // namespace

FakeEngine::FakeEngine() { theEngine = this; }

FakeEngine::~FakeEngine() { theEngine = nullptr; }

void FakeEngine::setText(int number, const std::string& text) {
  texts_.emplace_back(text.begin(), text.end()).push_back('\0');
  material.szText[number - 1] = texts_.back().data();
}

void FakeEngine::setTable(int number, int a, int b, const std::vector<double>& values) {
  doubles_.push_back(values);
  material.table[number - 1] = {a, b, static_cast<int>(values.size()), doubles_.back().data()};
}

void FakeEngine::setModel(int first, int second, int third, int fourth, const std::vector<double>& coefficients,
                          double last) {
  const int model[] = {first, second, third, fourth};
  std::copy(std::begin(model), std::end(model), std::begin(material.iModel));
  doubles_.push_back(coefficients);
  doubles_.back().resize(6);
  material.pdCoefficient = doubles_.back().data();
  material.dLast = last;
}

ZEB_MTC& FakeEngine::addCurve(int a, int b, const std::vector<Point>& points) {
  auto& values = doubles_.emplace_back();
  auto& entries = entries_.emplace_back();
  for (const Point& point : points) {
    values.push_back(point.value);
    ZEB_MTC_Entry entry{};
    std::copy(std::begin(point.ints), std::end(point.ints), std::begin(entry.iValue));
    double next = point.firstDouble;
    for (double& value : entry.dValue) {
      value = next;
      next += 1.0;
    }
    entries.push_back(entry);
  }
  return curves_.emplace_back(ZEB_MTC{a, b, static_cast<int>(points.size()), entries.data(), values.data()});
}

// Whoever still looked into the engine's memory would find this.
void FakeEngine::spoil() {
  for (auto& text : texts_) std::fill(text.begin(), text.end(), '?');
  for (auto& values : doubles_) std::fill(values.begin(), values.end(), -9e99);
  for (auto& entries : entries_) std::fill(entries.begin(), entries.end(), ZEB_MTC_Entry{{-9, -9, -9}, {}});
  material = ZebMaterial{};
}

ZebMaterial* ZebGetMaterial(const std::string& name) {
  if (theEngine == nullptr) throw std::logic_error("no engine");
  theEngine->calls.push_back("ZebGetMaterial " + name);
  return theEngine->knowsMaterial ? &theEngine->material : nullptr;
}

int ZebGetMTCInfo(ZebMaterial* material, int& unused, int& count) {
  FakeEngine& engine = engineOf(material);
  engine.calls.emplace_back("ZebGetMTCInfo");
  unused = -12345;
  count = engine.reportedCurves.value_or(static_cast<int>(engine.curves_.size()));
  return 1;
}

const ZEB_MTC* ZebGetMTCData(ZebMaterial* material, int index) {
  FakeEngine& engine = engineOf(material);
  engine.calls.push_back("ZebGetMTCData " + std::to_string(index));
  const auto i = static_cast<std::size_t>(index);
  return index >= 0 && i < engine.curves_.size() ? &engine.curves_[i] : nullptr;
}

void ZebReleaseMaterial(ZebMaterial* material) {
  FakeEngine& engine = engineOf(material);
  engine.calls.emplace_back("ZebReleaseMaterial");
  engine.spoil();
}
