#include "standalone/HostDefinition.hpp"

#include <dlfcn.h>

namespace zeb {

namespace {

/// Where the program or library is loaded that holds the address.
const void* objectOf(const void* address) {
  Dl_info info{};
  return dladdr(address, &info) == 0 ? nullptr : info.dli_fbase;
}

}  // namespace

void* findHostDefinition(const char* symbol, const void* caller) {
  if (void* const behind = dlsym(RTLD_NEXT, symbol)) return behind;
  // In front of this library it is overlooked only where this one was bound before the host opened its own.
  void* const first = dlsym(RTLD_DEFAULT, symbol);
  const void* const object = objectOf(first);
  const bool isStandIn = object == objectOf(reinterpret_cast<const void*>(&findHostDefinition));
  return isStandIn || object == objectOf(caller) ? nullptr : first;
}

}  // namespace zeb
