// The tables in tests/data: tab-separated, a '#' line that names the columns, texts in double quotes with \t and \n.
#pragma once

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace zebtest {

/// One line of a table by column name; "-" stands for none.
using TsvRow = std::map<std::string, std::string>;

inline std::string unquoted(const std::string& cell) {
  if (cell.size() < 2 || cell.front() != '"' || cell.back() != '"') return cell;
  std::string text;
  for (std::size_t i = 1; i + 1 < cell.size(); ++i) {
    if (cell[i] != '\\') {
      text += cell[i];
      continue;
    }
    static const std::string kLetters = "tnrvf0", kMeanings("\t\n\r\v\f\0", 6);
    const std::size_t letter = kLetters.find(cell[++i]);
    text += letter == std::string::npos ? cell[i] : kMeanings[letter];
  }
  return text;
}

inline std::vector<std::string> cells(const std::string& line) {
  std::vector<std::string> result;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, '\t');) result.push_back(cell);
  return result;
}

/// Cells keep their quotes: unquoted() takes them off.
inline std::vector<TsvRow> readTsv(const std::string& name) {
  std::ifstream file(std::string(ZEB_TEST_DATA_DIR) + "/" + name);
  if (!file) throw std::runtime_error("no test data: " + name);
  std::string line;
  std::getline(file, line);
  const std::vector<std::string> columns = cells(line.substr(1));
  std::vector<TsvRow> rows;
  while (std::getline(file, line)) {
    if (line.empty()) continue;
    const std::vector<std::string> values = cells(line);
    TsvRow row;
    for (std::size_t i = 0; i < columns.size(); ++i) row[columns[i]] = i < values.size() ? values[i] : "-";
    rows.push_back(std::move(row));
  }
  return rows;
}

/// The codes of the molding types.
inline std::set<int> moldingCodes() {
  std::set<int> codes;
  for (const TsvRow& row : readTsv("molding.tsv")) codes.insert(std::stoi(row.at("code")));
  return codes;
}

}  // namespace zebtest
