#include "inspect/set/Analysis.hpp"

#include <cerrno>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "blocks/CZEBCMPVEParm.h"
#include "frame/MoldingTypes.hpp"

namespace zeb {

std::optional<int> moldingCode(const std::string& nameOrCode) {
  const auto types = moldingTypes();
  int code = -1;
  const char* end = nameOrCode.data() + nameOrCode.size();
  if (std::from_chars(nameOrCode.data(), end, code).ptr == end && !nameOrCode.empty()) {
    if (code >= 0 && static_cast<std::size_t>(code) < types.size()) return code;
    return {};
  }
  for (std::size_t i = 0; i < types.size(); ++i) {
    if (equalWithoutCase(types[i].name, nameOrCode)) return static_cast<int>(i);
  }
  return {};
}

std::string moldingNames() {
  std::string names;
  for (const MoldingType& type : moldingTypes()) names += (names.empty() ? "" : ", ") + std::string(type.name);
  return names;
}

std::unique_ptr<CZEBKNCMPCompParm> analyse(const std::string& fileName, const AnalysisOptions& options, CZEBCom* com,
                                           ReadObserver* observer) {
  auto set = std::make_unique<CZEBKNCMPCompParm>(options.molding, options.material);
  if (CZEBCMPInternalTool* tool = Inspection::tool(*set)) {
    tool->m_observer = observer;
    tool->m_writesFiles = false;
  }
  if (com != nullptr) set->setZEBCom(com);
  if (options.wax) set->setIsWaxMat(1);
  if (options.viscoelastic) set->getVEParm()->setIstoCalcRS(true);
  set->setSolidFillBlock(fileName);
  if (options.repair) set->modifyParameters();
  return set;
}

std::string whyUnreadable(const std::string& fileName) {
  std::error_code error;
  const auto status = std::filesystem::status(fileName, error);
  if (status.type() == std::filesystem::file_type::not_found) return "no such file";
  if (error) return error.message();
  if (std::filesystem::is_directory(status)) return "is a directory";
  if (!std::filesystem::is_regular_file(status)) return "is not a regular file";
  errno = 0;
  std::ifstream stream(fileName);
  if (!stream) return errno != 0 ? std::strerror(errno) : "cannot be opened";
  stream.peek();
  return stream.bad() ? "cannot be read" : std::string();
}

}  // namespace zeb
