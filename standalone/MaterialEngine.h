// The file-backed material engine behind ZebGetMaterial and its siblings: one JSON file per material.
#pragma once

#include <string>
#include <vector>

namespace zeb {

// A material file is one JSON object; material.schema.json beside this header describes it for editors.
//
// clang-format off
//   "header"        six integers
//   "texts"         up to seven texts, each a string (cut to 254 bytes between characters) or null; missing ones are null
//   "tables"        up to 17 objects {"a": int, "b": int, "values": [numbers]}; missing ones are empty, a and b are 0
//   "model"         four integers; the third selects how many coefficients are used: 1, 2, or 3 for five
//   "coefficients"  up to six numbers, at least as many as are used; missing ones are 0
//   "last"          a number; 0 if missing
//   "testCurves"    objects {"a": int, "b": int, "entries": [{"value": number, "ints": [3 integers],
//                   "doubles": [up to 21 numbers]}]}; none if missing; missing doubles are 0
// clang-format on
//
// "header", "texts", "tables" and "model" must be there. Integers are 32 bits wide, numbers finite. Every object may
// hold a "comment" string, the outermost one "$schema"; any other name, and a name that stands twice, is an error. A
// list holds at most 1,000,000 elements, a file at most 64 MB. What the values mean is between the material file and
// the solver.

/// Where a material that is named without a path is looked for, as FOLDER/NAME.json, in order. A name that holds a
/// path separator or ends in ".json" is the file's own name. Until this is called: the working folder.
void setMaterialFolders(std::vector<std::string> folders);
std::vector<std::string> materialFolders();

/// Why the last ZebGetMaterial of this process returned null, one line; empty if it did not. Where a name was not
/// found, the line tells which materials the folders hold.
std::string lastMaterialError();

/// How many coefficients the third model value selects.
inline int usedCoefficients(int model) { return model == 3 ? 5 : model == 1 || model == 2 ? model : 0; }

}  // namespace zeb
