// Makes tests of file permissions mean something when root runs them.
#pragma once

#include <unistd.h>

#include <filesystem>

namespace zebtest {

/// While it lives, the process is nobody in particular if it was root. Files it makes then belong to nobody.
class WithoutPrivileges {
 public:
  WithoutPrivileges() : m_changed(m_before == 0 && seteuid(kNobody) == 0) {}
  WithoutPrivileges(const WithoutPrivileges&) = delete;
  WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
  ~WithoutPrivileges() {
    if (m_changed) m_changed = seteuid(m_before) != 0;
  }
  /// False where root could not step down, or where nobody else may make temporary files.
  bool holds() const {
    return geteuid() != 0 && eaccess(std::filesystem::temp_directory_path().c_str(), W_OK | X_OK) == 0;
  }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t m_before = geteuid();
  bool m_changed;
};

}  // namespace zebtest
