#include "frame/MoldingTypes.hpp"

#include "frame/Repairs.hpp"

int CZEBCMPIM::modifyMoldingParameters() { return 1; }
int CZEBCMPFAIM::modifyMoldingParameters() { return zeb::repairForMolding(*this, 1); }
int CZEBCMPRIM::modifyMoldingParameters() { return 1; }
int CZEBCMPICPackage::modifyMoldingParameters() { return 1; }
int CZEBCMPICM::modifyMoldingParameters() { return 1; }
int CZEBCMPUNF::modifyMoldingParameters() { return 1; }
int CZEBCMPGAIM::modifyMoldingParameters() { return zeb::repairForMolding(*this, 6); }
int CZEBCMPWAIM::modifyMoldingParameters() { return zeb::repairForMolding(*this, 7); }
int CZEBCMPCOIM::modifyMoldingParameters() { return 1; }
int CZEBCMPMCIM::modifyMoldingParameters() { return zeb::repairForMolding(*this, 9); }
int CZEBCMPCM::modifyMoldingParameters() { return 1; }
int CZEBCMPBIIM::modifyMoldingParameters() { return zeb::repairForMolding(*this, 11); }
int CZEBCMPPIM::modifyMoldingParameters() { return 1; }
int CZEBCMPRTM::modifyMoldingParameters() { return zeb::repairForMolding(*this, 13); }
int CZEBCMPCFM::modifyMoldingParameters() { return zeb::repairForMolding(*this, 14); }

namespace zeb {

namespace {

template <class Tool>
std::shared_ptr<CZEBCMPInternalTool> create() {
  return std::make_shared<Tool>();
}

}  // namespace

std::span<const MoldingType> moldingTypes() {
  static constexpr MoldingType kTypes[] = {
      {"IM", create<CZEBCMPIM>},     {"FAIM", create<CZEBCMPFAIM>},
      {"RIM", create<CZEBCMPRIM>},   {"ICPackage", create<CZEBCMPICPackage>},
      {"ICM", create<CZEBCMPICM>},   {"UNF", create<CZEBCMPUNF>},
      {"GAIM", create<CZEBCMPGAIM>}, {"WAIM", create<CZEBCMPWAIM>},
      {"COIM", create<CZEBCMPCOIM>}, {"MCIM", create<CZEBCMPMCIM>},
      {"CM", create<CZEBCMPCM>},     {"BIIM", create<CZEBCMPBIIM>},
      {"PIM", create<CZEBCMPPIM>},   {"RTM", create<CZEBCMPRTM>},
      {"CFM", create<CZEBCMPCFM>},
  };
  return kTypes;
}

}  // namespace zeb
