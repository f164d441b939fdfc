// The fifteen molding types; what each changes after reading stands in Repairs.cpp.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "frame/CZEBCMPInternalTool.hpp"

class CZEBCMPIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPFAIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPRIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPICPackage final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPICM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPUNF final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPGAIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPWAIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPCOIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPMCIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPCM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPBIIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPPIM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPRTM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};
class CZEBCMPCFM final : public CZEBCMPInternalTool {
 public:
  int modifyMoldingParameters() override;
};

namespace zeb {

struct MoldingType {
  std::string_view name;  ///< "IM"; the number of the entry is the code
  std::shared_ptr<CZEBCMPInternalTool> (*create)();
};

/// The molding types by code, 0 to 14.
std::span<const MoldingType> moldingTypes();

}  // namespace zeb
