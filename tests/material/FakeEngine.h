// A material engine for tests: holds one material, counts its calls and spoils the material when it is released.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/ZEBMatrEngine.h"

/// The engine behind ZebGetMaterial and its siblings while it lives; one at a time. The material may be changed
/// directly.
class FakeEngine {
 public:
  FakeEngine();
  ~FakeEngine();
  FakeEngine(const FakeEngine&) = delete;
  FakeEngine& operator=(const FakeEngine&) = delete;

  struct Point {
    double value;
    int ints[3];
    double firstDouble;  ///< The 21 doubles are this one and the 20 that follow in steps of 1.
  };

  // Numbers count from 1 here.
  void setText(int number, const std::string& text);
  void setTable(int number, int a, int b, const std::vector<double>& values);
  void setModel(int first, int second, int third, int fourth, const std::vector<double>& coefficients, double last);
  ZEB_MTC& addCurve(int a, int b, const std::vector<Point>& points);

  ZebMaterial material{};
  bool knowsMaterial = true;
  std::optional<int> reportedCurves;  ///< Instead of the true number.
  std::vector<std::string> calls;     ///< For example "ZebGetMTCData 0".

 private:
  friend ZebMaterial* ZebGetMaterial(const std::string& name);
  friend int ZebGetMTCInfo(ZebMaterial* material, int& unused, int& count);
  friend const ZEB_MTC* ZebGetMTCData(ZebMaterial* material, int index);
  friend void ZebReleaseMaterial(ZebMaterial* material);
  void spoil();

  std::deque<std::vector<char>> texts_;
  std::deque<std::vector<double>> doubles_;
  std::deque<std::vector<ZEB_MTC_Entry>> entries_;
  std::deque<ZEB_MTC> curves_;
};
