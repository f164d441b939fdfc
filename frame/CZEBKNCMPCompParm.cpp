#include "frame/CZEBKNCMPCompParm.h"

#include <stdexcept>

#include "engine/DumpEngine.hpp"
#include "engine/TextOutput.hpp"
#include "frame/CMPReader.hpp"
#include "frame/MoldingTypes.hpp"
#include "frame/Repairs.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

CZEBKNCMPCompParm::CZEBKNCMPCompParm(int moldingType, int materialType) {
  setMoldingType(moldingType);
  setMaterialType(materialType);
}

CZEBKNCMPCompParm::CZEBKNCMPCompParm(const CZEBKNCMPCompParm& other) : m_tool(other.m_tool) {}

CZEBKNCMPCompParm& CZEBKNCMPCompParm::operator=(const CZEBKNCMPCompParm& other) {
  if (this != &other && m_tool != other.m_tool) {
    m_earlierTools.push_back(m_tool);
    m_tool = other.m_tool;
  }
  return *this;
}

CZEBKNCMPCompParm::~CZEBKNCMPCompParm() = default;

int CZEBKNCMPCompParm::setMoldingType(int moldingType) {
  const auto types = zeb::moldingTypes();
  if (moldingType < 0 || static_cast<std::size_t>(moldingType) >= types.size()) {
    m_tool.reset();
    zeb::writeOut("Undefined Molding Type: " + std::to_string(moldingType) + "\n");
    return 1;
  }
  m_tool = types[static_cast<std::size_t>(moldingType)].create();
  m_tool->m_iMoldingType = moldingType;
  return 1;
}

int CZEBKNCMPCompParm::setMaterialType(int materialType) {
  if (!m_tool) return -1;
  m_tool->m_iMaterialType = materialType;
  return 1;
}

int CZEBKNCMPCompParm::setIsWaxMat(int isWax) {
  if (!m_tool) return -1;
  m_tool->m_iIsWaxMat = isWax;
  return 1;
}

int CZEBKNCMPCompParm::setZEBCom(CZEBCom* com) {
  if (com == nullptr || !m_tool) return -1;
  m_tool->m_pCom = com;
  return 1;
}

int CZEBKNCMPCompParm::setSolidFillBlock(const std::string& fileName) {
  if (!m_tool) return -1;
  zeb::readCMPFile(*m_tool, fileName);
  CZEBCMPVEParm& viscoelastic = m_tool->block<CZEBCMPVEParm>();
  if (!zeb::wantsViscoelasticFile(viscoelastic)) return 1;
  const std::size_t extension = fileName.rfind('.');
  if (extension == fileName.npos) throw std::out_of_range("invalid string position");
  const std::string companion = fileName.substr(0, extension) + ".vecmp";
  zeb::readViscoelasticFile(companion, viscoelastic, m_tool->lineSource(), m_tool->m_observer, m_tool->m_writesFiles);
  return 1;
}

int CZEBKNCMPCompParm::modifyParameters() { return m_tool ? zeb::modifyParameters(*m_tool) : -1; }

int CZEBKNCMPCompParm::OutputParameters() {
  if (!m_tool) return -1;
  for (const zeb::BlockEntry& entry : zeb::dumpedBlocks()) zeb::printParameters(entry.table(), entry.locate(*m_tool));
  return 1;
}

template <class Block>
Block* CZEBKNCMPCompParm::block() const {
  return m_tool ? &m_tool->block<Block>() : nullptr;
}

CZEBCMPAutoVPCtrlParm* CZEBKNCMPCompParm::getAutoVPCtrlParm() const { return block<CZEBCMPAutoVPCtrlParm>(); }
CZEBCMPBiIMParm* CZEBKNCMPCompParm::getBiIMParm() const { return block<CZEBCMPBiIMParm>(); }
CZEBCMPCompressibleFlowParm* CZEBKNCMPCompParm::getCompressibleFlowParm() const {
  return block<CZEBCMPCompressibleFlowParm>();
}
CZEBCMPCompressionParm* CZEBKNCMPCompParm::getCompressionParm() const { return block<CZEBCMPCompressionParm>(); }
CZEBCMPCtrlHRSystemParm* CZEBKNCMPCompParm::getCtrlHRSystemParm() const { return block<CZEBCMPCtrlHRSystemParm>(); }
CZEBCMPEpoxyVEParm* CZEBKNCMPCompParm::getEpoxyVEParm() const { return block<CZEBCMPEpoxyVEParm>(); }
CZEBCMPFAIMParm* CZEBKNCMPCompParm::getFAIMParm() const { return block<CZEBCMPFAIMParm>(); }
CZEBCMPFEMParm* CZEBKNCMPCompParm::getFEMParm() const { return block<CZEBCMPFEMParm>(); }
CZEBCMPGeneralParm* CZEBKNCMPCompParm::getGeneralParm() const { return block<CZEBCMPGeneralParm>(); }
CZEBCMPHRSchemesParm* CZEBKNCMPCompParm::getHRSchemesParm() const { return block<CZEBCMPHRSchemesParm>(); }
CZEBCMPIBMParm* CZEBKNCMPCompParm::getIBMParm() const { return block<CZEBCMPIBMParm>(); }
CZEBCMPInletVelocitySettingParm* CZEBKNCMPCompParm::getInletVelocitySettingParm() const {
  return block<CZEBCMPInletVelocitySettingParm>();
}
CZEBCMPIteratParm* CZEBKNCMPCompParm::getIteratParm() const { return block<CZEBCMPIteratParm>(); }
CZEBCMPMAFVMParm* CZEBKNCMPCompParm::getMAFVMParm() const { return block<CZEBCMPMAFVMParm>(); }
CZEBCMPMicroMoldingParm* CZEBKNCMPCompParm::getMicroMoldingParm() const { return block<CZEBCMPMicroMoldingParm>(); }
CZEBCMPMuCellParm* CZEBKNCMPCompParm::getMuCellParm() const { return block<CZEBCMPMuCellParm>(); }
CZEBCMPMultiGateParm* CZEBKNCMPCompParm::getMultiGateParm() const { return block<CZEBCMPMultiGateParm>(); }
CZEBCMPOutletParm* CZEBKNCMPCompParm::getOutletParm() const { return block<CZEBCMPOutletParm>(); }
CZEBCMPProcessModifyParm* CZEBKNCMPCompParm::getProcessModifyParm() const { return block<CZEBCMPProcessModifyParm>(); }
CZEBCMPPUChemFoamParm* CZEBKNCMPCompParm::getPUChemFoamParm() const { return block<CZEBCMPPUChemFoamParm>(); }
CZEBCMPPVTcParm* CZEBKNCMPCompParm::getPVTcParm() const { return block<CZEBCMPPVTcParm>(); }
CZEBCMPRegionVersionParm* CZEBKNCMPCompParm::getRegionVersionParm() const { return block<CZEBCMPRegionVersionParm>(); }
CZEBCMPRTMParm* CZEBKNCMPCompParm::getRTMParm() const { return block<CZEBCMPRTMParm>(); }
CZEBCMPShortShotParm* CZEBKNCMPCompParm::getShortShotParm() const { return block<CZEBCMPShortShotParm>(); }
CZEBCMPStableFlagParm* CZEBKNCMPCompParm::getStableFlagParm() const { return block<CZEBCMPStableFlagParm>(); }
CZEBCMPTimeStepSizeCtrlParm* CZEBKNCMPCompParm::getTimeStepSizeCtrlParm() const {
  return block<CZEBCMPTimeStepSizeCtrlParm>();
}
CZEBCMPUNFSettingParm* CZEBKNCMPCompParm::getUNFSettingParm() const { return block<CZEBCMPUNFSettingParm>(); }
CZEBCMPViscositySetting2Parm* CZEBKNCMPCompParm::getViscositySetting2Parm() const {
  return block<CZEBCMPViscositySetting2Parm>();
}
CZEBCMPCrystallineParm* CZEBKNCMPCompParm::getCrystallineParm() const { return block<CZEBCMPCrystallineParm>(); }
CZEBCMPVEParm* CZEBKNCMPCompParm::getVEParm() const { return block<CZEBCMPVEParm>(); }
CZEBCMP_FaceRBF_Parm* CZEBKNCMPCompParm::getFaceRBFParm() const { return block<CZEBCMP_FaceRBF_Parm>(); }
CZEBCMP_IBRBF_Parm* CZEBKNCMPCompParm::getIBRBFParm() const { return block<CZEBCMP_IBRBF_Parm>(); }
CZEBCMP_BaseRBF_Parm* CZEBKNCMPCompParm::getBaseRBFParm() const { return block<CZEBCMP_BaseRBF_Parm>(); }
CZEBCMPPIMParm* CZEBKNCMPCompParm::getPIMParm() const { return block<CZEBCMPPIMParm>(); }
CZEBCMPSAMGCtrlParm* CZEBKNCMPCompParm::getSAMGCtrlParm() const { return block<CZEBCMPSAMGCtrlParm>(); }
CZEBCMPFiberParm* CZEBKNCMPCompParm::getFiberParm() const { return block<CZEBCMPFiberParm>(); }
CZEBCMPFoamParm* CZEBKNCMPCompParm::getFoamParm() const { return block<CZEBCMPFoamParm>(); }
CZEBCMPElongationParm* CZEBKNCMPCompParm::getElongationParm() const { return block<CZEBCMPElongationParm>(); }
CZEBCoolFastCoolParm* CZEBKNCMPCompParm::getCool_FastCoolParm() const { return block<CZEBCoolFastCoolParm>(); }
CZEBCoolStdCoolParm* CZEBKNCMPCompParm::getCool_StdCoolParm() const { return block<CZEBCoolStdCoolParm>(); }
CZEBCool3DCoolingChannelParm* CZEBKNCMPCompParm::getCool_3DCoolingChannelParm() const {
  return block<CZEBCool3DCoolingChannelParm>();
}
CZEBCoolBackDoorParm* CZEBKNCMPCompParm::getCool_BackDoorParm() const { return block<CZEBCoolBackDoorParm>(); }
