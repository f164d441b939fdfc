#include "cmx/CZEBKNCMXCompParm.h"

#include <algorithm>

#include "cmx/CZEBCMXInternalTool.hpp"

CZEBKNCMXCompParm::CZEBKNCMXCompParm(int /*unused*/) : m_pTool(std::make_shared<CZEBCMXInternalTool>()) {}

CZEBKNCMXCompParm::CZEBKNCMXCompParm(const CZEBKNCMXCompParm& other) : m_pTool(other.m_pTool) {}

CZEBKNCMXCompParm::~CZEBKNCMXCompParm() = default;

CZEBKNCMXCompParm& CZEBKNCMXCompParm::operator=(const CZEBKNCMXCompParm& other) {
  if (this == &other || m_pTool == other.m_pTool) return *this;
  if (std::find(m_earlierTools.begin(), m_earlierTools.end(), m_pTool) == m_earlierTools.end()) {
    m_earlierTools.push_back(m_pTool);
  }
  m_pTool = other.m_pTool;
  return *this;
}

int CZEBKNCMXCompParm::setZEBCom(CZEBCom* com) { return m_pTool->setZEBCom(com); }

int CZEBKNCMXCompParm::setSolidFillBlock(const std::string& fileName) { return m_pTool->setSolidFillBlock(fileName); }

CZEBCMX_SOLID_FILL* CZEBKNCMXCompParm::getSOLID_FILL() const { return &m_pTool->block<CZEBCMX_SOLID_FILL>(); }

CZEBCMX_FILL_ADVANCED_SlipBC* CZEBKNCMXCompParm::getFILL_ADVANCED_SlipBC() const {
  return &m_pTool->block<CZEBCMX_FILL_ADVANCED_SlipBC>();
}

CZEBCMX_FILL_ADVANCED_LONGFIBER* CZEBKNCMXCompParm::getFILL_ADVANCED_LONGFIBER() const {
  return &m_pTool->block<CZEBCMX_FILL_ADVANCED_LONGFIBER>();
}

CZEBCMX_FILL_ADVANCED_HRSteady* CZEBKNCMXCompParm::getFILL_ADVANCED_HRSteady() const {
  return &m_pTool->block<CZEBCMX_FILL_ADVANCED_HRSteady>();
}

CZEBCMX_SOLID_COOL* CZEBKNCMXCompParm::getSOLID_COOL() const { return &m_pTool->block<CZEBCMX_SOLID_COOL>(); }

CZEBCMX_SOLID_VE* CZEBKNCMXCompParm::getSOLID_VE() const { return &m_pTool->block<CZEBCMX_SOLID_VE>(); }

CZEBCMX_SOLID_PACK* CZEBKNCMXCompParm::getSOLID_PACK() const { return &m_pTool->block<CZEBCMX_SOLID_PACK>(); }

CZEBCMX_TASKMANAGER* CZEBKNCMXCompParm::get_TASKMANAGER() const { return &m_pTool->block<CZEBCMX_TASKMANAGER>(); }

CZEBCMX_Dyna_Forming* CZEBKNCMXCompParm::getDyna_Forming() const { return &m_pTool->block<CZEBCMX_Dyna_Forming>(); }

CZEBCMX_FILL_ADVANCED_MCIM* CZEBKNCMXCompParm::getFILL_ADVANCED_MCIM() const {
  return &m_pTool->block<CZEBCMX_FILL_ADVANCED_MCIM>();
}

CZEBCMX_FILL_OUTPUT_TIMES* CZEBKNCMXCompParm::getFILL_OUTPUT_TIMES() const {
  return &m_pTool->block<CZEBCMX_FILL_OUTPUT_TIMES>();
}

CZEBCMX_PACK_OUTPUT_TIMES* CZEBKNCMXCompParm::getPACK_OUTPUT_TIMES() const {
  return &m_pTool->block<CZEBCMX_PACK_OUTPUT_TIMES>();
}
