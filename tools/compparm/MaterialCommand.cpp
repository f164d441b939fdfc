// compparm material: a material as the engine loads it and every rank holds it.
#include <algorithm>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>

#include "inspect/explain/Settings.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "material/CZEBKNMaterialParam.h"
#include "standalone/MaterialEngine.h"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

using Json = nlohmann::ordered_json;

struct MaterialArguments {
  std::string name;
  std::vector<std::string> folders;
  int ranks = 1;
  bool json = false;
};

struct Loaded {
  std::unique_ptr<CZEBKNMaterialParam> material;
  std::vector<const ZEB_MTC*> curves;
  std::string messages;  // what the library printed while it loaded
  std::string error;     // of the engine
  RankComparison ranks;
};

int usedCoefficients(const ZebMaterial& material) { return zeb::usedCoefficients(material.iModel[2]); }

// GetMtcData alone knows the number of curves: it ends with a null and a line of text, which nobody is to see.
std::vector<const ZEB_MTC*> curvesOf(const CZEBKNMaterialParam& material) {
  std::vector<const ZEB_MTC*> curves;
  while (const ZEB_MTC* curve = material.GetMtcData(static_cast<int>(curves.size()))) curves.push_back(curve);
  return curves;
}

// One value a line. Texts 2 to 7 are not distributed, so they are not compared.
std::string fingerprint(const ZebMaterial& material, const std::vector<const ZEB_MTC*>& curves) {
  std::string all;
  const auto add = [&all](const std::string& name, const std::string& value) { all += name + " = " + value + "\n"; };
  for (const int header : material.iHeader) add("header", std::to_string(header));
  add("text 1", material.szText[0]);
  int number = 0;
  for (const ZebMatParam& table : material.table) {
    const std::string name = "table " + std::to_string(++number);
    for (const int value : {table.iA, table.iB, table.iCount}) add(name, std::to_string(value));
    for (int i = 0; i < table.iCount; ++i) add(name + " entry " + std::to_string(i), zeb::exact(table.pdValue[i]));
  }
  for (const int model : material.iModel) add("model", std::to_string(model));
  for (int i = 0; i < usedCoefficients(material); ++i) add("coefficient", zeb::exact(material.pdCoefficient[i]));
  add("last value", zeb::exact(material.dLast));
  add("test curves", std::to_string(curves.size()));
  number = 0;
  for (const ZEB_MTC* curve : curves) {
    const std::string name = "test curve " + std::to_string(++number);
    for (const int value : {curve->iA, curve->iB, curve->iCount}) add(name, std::to_string(value));
    for (int i = 0; i < curve->iCount; ++i) {
      const std::string entry = name + " entry " + std::to_string(i);
      add(entry, zeb::exact(curve->pdValue[i]));
      for (const int value : curve->pEntry[i].iValue) add(entry, std::to_string(value));
      for (const double value : curve->pEntry[i].dValue) add(entry, zeb::exact(value));
    }
  }
  return all;
}

Loaded load(const MaterialArguments& arguments, const MpiRun* mpi) {
  Loaded loaded;
  const zeb::OutputCapture capture;
  const auto onRank = [&](CZEBCom* com) {
    auto material = std::make_unique<CZEBKNMaterialParam>();
    material->SetInput(arguments.name, com);
    const bool isRank0 = com == nullptr || com->GetCPUId() == 0;
    if (isRank0) loaded.messages = capture.text();
    std::vector<const ZEB_MTC*> curves = curvesOf(*material);
    std::string values = fingerprint(*material->GetZebMaterial(), curves);
    if (isRank0) {
      loaded.material = std::move(material);
      loaded.curves = std::move(curves);
    }
    return values;
  };
  const RankTask task = [&](CZEBCom& com) { return onRank(&com); };
  if (mpi != nullptr) {
    loaded.ranks = mpi->compare(task);
  } else if (arguments.ranks > 1) {
    loaded.ranks = compareThreads(arguments.ranks, task);
  } else {
    onRank(nullptr);
  }
  loaded.error = zeb::lastMaterialError();
  return loaded;
}

void printJson(const MaterialArguments& arguments, const Loaded& loaded) {
  const ZebMaterial& material = *loaded.material->GetZebMaterial();
  Json texts = Json::array(), tables = Json::array(), curves = Json::array();
  for (const char* text : material.szText) texts.push_back(std::string(text));
  for (const ZebMatParam& table : material.table) {
    tables.push_back({{"a", table.iA},
                      {"b", table.iB},
                      {"values", std::vector<double>(table.pdValue, table.pdValue + table.iCount)}});
  }
  for (const ZEB_MTC* curve : loaded.curves) {
    Json entries = Json::array();
    for (int i = 0; i < curve->iCount; ++i) {
      entries.push_back(
          {{"value", curve->pdValue[i]}, {"ints", curve->pEntry[i].iValue}, {"doubles", curve->pEntry[i].dValue}});
    }
    curves.push_back({{"a", curve->iA}, {"b", curve->iB}, {"entries", std::move(entries)}});
  }
  const double* coefficients = material.pdCoefficient;
  Json document = {{"material", arguments.name},
                   {"header", material.iHeader},
                   {"texts", std::move(texts)},
                   {"tables", std::move(tables)},
                   {"model", material.iModel},
                   {"coefficients", std::vector<double>(coefficients, coefficients + usedCoefficients(material))},
                   {"last", material.dLast},
                   {"testCurves", std::move(curves)}};
  if (loaded.ranks.ranks > 1) {
    document["ranks"] = {{"count", loaded.ranks.ranks},
                         {"same", loaded.ranks.same()},
                         {"notCompared", "texts 2 to 7, which rank 0 keeps"}};
    if (!loaded.ranks.same()) document["ranks"]["difference"] = loaded.ranks.difference;
  }
  if (!loaded.messages.empty()) document["messages"] = loaded.messages;
  std::cout << document.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

std::string joined(const double* values, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i > 0 ? "  " : "") + zeb::exact(values[i]);
  return text;
}

std::string joined(const int* values, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i > 0 ? "  " : "") + std::to_string(values[i]);
  return text;
}

// As in the material file: no control character of it reaches the terminal.
std::string quoted(const char* text) { return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace); }

void printRecord(const ZebMaterial& material, bool isOneOfSeveral) {
  const auto line = [](const std::string& name, const std::string& value) {
    std::cout << "  " << padded(name, 14) << value << '\n';
  };
  std::cout << coloured(Colour::kBold, "Record") << '\n';
  line("header", joined(material.iHeader, 6));
  for (int i = 0; i < 7; ++i) {
    const std::string note = isOneOfSeveral && i > 0 ? "  " + coloured(Colour::kDim, "(on rank 0 only)") : "";
    line("text " + std::to_string(i + 1), quoted(material.szText[i]) + note);
  }
  line("model", joined(material.iModel, 4));
  line("coefficients",
       usedCoefficients(material) == 0 ? "none" : joined(material.pdCoefficient, usedCoefficients(material)));
  line("last value", zeb::exact(material.dLast));
  std::cout << '\n';
}

// B values make a row, where the table has so many; what that means is the engine's business.
void printTable(int number, const ZebMatParam& table) {
  std::cout << coloured(Colour::kBold, "Table " + std::to_string(number)) << "  "
            << coloured(Colour::kDim, "A " + std::to_string(table.iA) + ", B " + std::to_string(table.iB) + ", " +
                                          std::to_string(table.iCount) + (table.iCount == 1 ? " value" : " values"))
            << '\n';
  const int inRow = std::clamp(table.iB, 1, 8);
  for (int i = 0; i < table.iCount; i += inRow) {
    std::cout << "  " << joined(table.pdValue + i, std::min(inRow, table.iCount - i)) << '\n';
  }
}

void printCurve(int number, const ZEB_MTC& curve) {
  std::cout << coloured(Colour::kBold, "Test curve " + std::to_string(number)) << "  "
            << coloured(Colour::kDim, "A " + std::to_string(curve.iA) + ", B " + std::to_string(curve.iB) + ", " +
                                          std::to_string(curve.iCount) + (curve.iCount == 1 ? " entry" : " entries"))
            << '\n';
  for (int i = 0; i < curve.iCount; ++i) {
    const ZEB_MTC_Entry& entry = curve.pEntry[i];
    int used = 21;
    while (used > 0 && entry.dValue[used - 1] == 0.0) --used;
    std::cout << "  " << padded(zeb::exact(curve.pdValue[i]), 12) << " | " << joined(entry.iValue, 3) << " | "
              << (used == 0 ? "all 0" : joined(entry.dValue, used)) << '\n';
  }
}

void printText(const MaterialArguments& arguments, const Loaded& loaded) {
  const ZebMaterial& material = *loaded.material->GetZebMaterial();
  std::cout << coloured(Colour::kBold, arguments.name) << "\n\n";
  printRecord(material, loaded.ranks.ranks > 1);
  std::string empty;
  for (int i = 0; i < 17; ++i) {
    const ZebMatParam& table = material.table[i];
    if (table.iCount == 0 && table.iA == 0 && table.iB == 0) {
      empty += " " + std::to_string(i + 1);
    } else {
      printTable(i + 1, table);
    }
  }
  if (!empty.empty()) std::cout << coloured(Colour::kDim, "Empty tables:" + empty) << '\n';
  std::cout << '\n';
  if (!loaded.curves.empty()) {
    std::cout << coloured(Colour::kDim, "Test curves: value | 3 ints | up to 21 doubles, zeros at the end left out")
              << '\n';
    for (std::size_t i = 0; i < loaded.curves.size(); ++i) printCurve(static_cast<int>(i) + 1, *loaded.curves[i]);
    std::cout << '\n';
  }
  std::cout << loaded.messages;
  if (loaded.ranks.ranks > 1) {
    std::cout << "Loaded on " << loaded.ranks.ranks << " ranks: "
              << (loaded.ranks.same() ? coloured(Colour::kGreen, "all hold the same record, tables and curves.")
                                      : coloured(Colour::kRed, "they differ: " + loaded.ranks.difference))
              << " Texts 2 to 7 stay on rank 0 and are not compared.\n";
  }
}

int show(const MaterialArguments& arguments, const MpiRun* mpi) {
  zeb::setMaterialFolders(arguments.folders);
  const Loaded loaded = load(arguments, mpi);
  const bool isRank0 = mpi == nullptr || mpi->rank() == 0;
  int failed = isRank0 && !loaded.error.empty() ? 1 : 0;
  if (mpi != nullptr) mpi->communicator()->Broadi(failed);
  if (failed != 0) return isRank0 ? fail(loaded.error) : kError;
  if (isRank0) arguments.json ? printJson(arguments, loaded) : printText(arguments, loaded);
  return loaded.ranks.same() ? kClean : kFindings;
}

}  // namespace

void addMaterial(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<MaterialArguments>();
  CLI::App* command = app.add_subcommand("material", "Load a material and show it as every rank holds it");
  command->add_option("NAME", arguments->name, "The material: a name, found as FOLDER/NAME.json, or a file")
      ->required();
  command
      ->add_option("--folder", arguments->folders,
                   "Where to look for it; may be given again (default: the working folder)")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->type_name("DIR");
  addRanks(*command, arguments->ranks, "Distribute it to N in-process ranks and compare their copies");
  command
      ->add_option_function<std::string>(
          "--format", [arguments](const std::string& format) { arguments->json = format == "json"; }, "text or json")
      ->check(CLI::IsMember({"text", "json"}))
      ->type_name("FORMAT");
  runOnRanks(*command, exitCode, [arguments](const MpiRun* mpi) {
    if (arguments->folders.empty()) arguments->folders = {"."};
    return show(*arguments, mpi);
  });
}

}  // namespace compparm
