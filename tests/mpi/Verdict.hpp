// What the comparisons over real ranks share: bringing values to rank 0 and agreeing on the result.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "standalone/mpi/MpiCommunicator.h"

namespace zebtest {

/// Collective. Every rank's text in rank order, on rank 0; elsewhere nothing.
inline std::vector<std::string> textsOfRanks(const std::string& text) {
  std::vector<std::string> texts;
  ZebMpiGatherText(
      text.data(), text.size(),
      [](void* context, int /*rank*/, const char* received, std::size_t length) {
        static_cast<std::vector<std::string>*>(context)->emplace_back(received, length);
      },
      &texts);
  return texts;
}

/// Whether all that the ranks found was good.
class Verdict {
 public:
  explicit Verdict(CZEBCom& com) : m_com(com) {}

  CZEBCom& com() const { return m_com; }
  bool isFirst() const { return m_com.GetCPUId() == 0; }

  /// A line on rank 0; on other ranks only what is bad.
  void add(bool good, const std::string& what) {
    m_good = m_good && good;
    if (isFirst() || !good) {
      std::printf("%-5s rank %d: %s\n", good ? "good" : "WRONG", m_com.GetCPUId(), what.c_str());
    }
  }

  /// Whether these are as many texts as there are ranks and all are the expected one.
  bool areAll(const std::vector<std::string>& texts, const std::string& expected) const {
    bool same = texts.size() == static_cast<std::size_t>(m_com.GetNCPU());
    for (const std::string& text : texts) same = same && text == expected;
    return same;
  }

  /// Collective: whether everything on every rank was good.
  bool allGood() const { return ZebMpiAllAgree(m_good ? 1 : 0) == 1; }

 private:
  CZEBCom& m_com;
  bool m_good = true;
};

/// Loads materials and creates process objects on all ranks.
void compareMaterialData(Verdict& verdict);

}  // namespace zebtest
