// The tools of the molding types. Their order, which makes the codes, and what each changes after reading stand in one
// table, in Repairs.cpp.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "engine/FixedText.hpp"
#include "frame/CZEBCMPInternalTool.hpp"
#include "frame/Repairs.hpp"

namespace zeb {

struct MoldingType {
  std::string_view name;  ///< "IM"; the number of the entry is the code
  std::shared_ptr<CZEBCMPInternalTool> (*create)();
  std::span<const RepairStep> repairs;
};

/// The molding types by code.
std::span<const MoldingType> moldingTypes();

template <FixedText Name>
class MoldingTool : public CZEBCMPInternalTool {
 public:
  static constexpr FixedText kName = Name;

  int modifyMoldingParameters() override { return repairForMolding(*this, kName.view()); }
};

}  // namespace zeb

class CZEBCMPIM final : public zeb::MoldingTool<"IM"> {};
class CZEBCMPFAIM final : public zeb::MoldingTool<"FAIM"> {};
class CZEBCMPRIM final : public zeb::MoldingTool<"RIM"> {};
class CZEBCMPICPackage final : public zeb::MoldingTool<"ICPackage"> {};
class CZEBCMPICM final : public zeb::MoldingTool<"ICM"> {};
class CZEBCMPUNF final : public zeb::MoldingTool<"UNF"> {};
class CZEBCMPGAIM final : public zeb::MoldingTool<"GAIM"> {};
class CZEBCMPWAIM final : public zeb::MoldingTool<"WAIM"> {};
class CZEBCMPCOIM final : public zeb::MoldingTool<"COIM"> {};
class CZEBCMPMCIM final : public zeb::MoldingTool<"MCIM"> {};
class CZEBCMPCM final : public zeb::MoldingTool<"CM"> {};
class CZEBCMPBIIM final : public zeb::MoldingTool<"BIIM"> {};
class CZEBCMPPIM final : public zeb::MoldingTool<"PIM"> {};
class CZEBCMPRTM final : public zeb::MoldingTool<"RTM"> {};
class CZEBCMPCFM final : public zeb::MoldingTool<"CFM"> {};
