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
  for (const zeb::BlockEntry& entry : zeb::dumpedBlocks()) {
    zeb::writeOut(zeb::dumpText(entry.table(), entry.locate(*m_tool)));
  }
  return 1;
}

#define ZEB_ACCESSOR(Class, accessor, place) \
  Class* CZEBKNCMPCompParm::accessor() const { return m_tool ? &m_tool->block<Class>() : nullptr; }
ZEB_CMP_BLOCKS(ZEB_ACCESSOR)
#undef ZEB_ACCESSOR
