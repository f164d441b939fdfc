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

#define ZEB_ACCESSOR(Class, accessor) \
  Class* CZEBKNCMXCompParm::accessor() const { return &m_pTool->block<Class>(); }
ZEB_CMX_BLOCKS(ZEB_ACCESSOR)
#undef ZEB_ACCESSOR
