// Three materials that differ in everything that decides what is sent.
#pragma once

#include "tests/material/FakeEngine.h"

/// One coefficient, tables 1, 3 and 17, no test curves.
inline void makeOneCoefficientMaterial(FakeEngine& engine) {
  const int header[] = {101, 102, 103, 104, 105, 106};
  for (int i = 0; i < 6; ++i) engine.material.iHeader[i] = header[i];
  const char* texts[] = {"PP crystalline", "maker", "grade", "comment", "fifth", "sixth", "seventh"};
  for (int i = 0; i < 7; ++i) engine.setText(i + 1, texts[i]);
  engine.setTable(1, 11, 12, {0.5, 1.5});
  engine.setTable(3, 31, 32, {-2.25});
  engine.setTable(17, 171, 172, {1e30, 2e-30, 3.0});
  engine.setModel(7, 8, 1, 9, {0.125, 99.0, 99.0, 99.0, 99.0, 99.0}, 42.5);
}

/// Five coefficients, table 2, two test curves of which the second is empty.
inline void makeFiveCoefficientMaterial(FakeEngine& engine) {
  engine.material.iHeader[0] = -1;
  engine.material.iHeader[5] = 6;
  engine.setText(1, "EP \"thermoset\"");
  engine.setText(7, "last");
  engine.setTable(2, 21, 22, {20.5});
  engine.setModel(1, 2, 3, 4, {0.1, 0.2, 0.3, 0.4, 0.5, 0.6}, -1.0);
  engine.addCurve(51, 52, {{3.5, {1, 2, 3}, 100.5}});
  engine.addCurve(61, 62, {});
}

/// Two coefficients, no text, no filled table, one test curve of two entries.
inline void makeTwoCoefficientMaterial(FakeEngine& engine) {
  engine.material.table[8].iA = 91;
  engine.material.table[8].iB = 92;
  engine.setModel(0, 0, 2, 0, {1.25, 2.25, 99.0, 99.0, 99.0, 99.0}, 0.0);
  engine.addCurve(71, 72, {{0.25, {4, 5, 6}, 1.0}, {0.75, {7, 8, 9}, -10.0}});
}
