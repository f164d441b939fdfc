// A host's own companion library comes before its stand-in wherever the host has linked it: the loader finds what
// stands first in the order of the link, and where that is the stand-in, it hands the call on.
#pragma once

namespace zeb {

/// The symbols that a host may define, as the compiler names them.
namespace symbol {
inline constexpr const char* kOpenFile =
    "_ZN10CZEBFileIO11ZEBOpenFileERSt14basic_ifstreamIcSt11char_traitsIcEEPKc11ZEBOpenModeii";
#if _GLIBCXX_USE_CXX11_ABI
inline constexpr const char* kGetMaterial = "_Z14ZebGetMaterialRKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE";
#else
inline constexpr const char* kGetMaterial = "_Z14ZebGetMaterialRKSs";
#endif
inline constexpr const char* kGetMTCInfo = "_Z13ZebGetMTCInfoP11ZebMaterialRiS1_";
inline constexpr const char* kGetMTCData = "_Z13ZebGetMTCDataP11ZebMateriali";
inline constexpr const char* kReleaseMaterial = "_Z18ZebReleaseMaterialP11ZebMaterial";
inline constexpr const char* kMakeProcess = "_ZN21ZEBG_SimulatorProcessC1Ev";
inline constexpr const char* kEndProcess = "_ZN26ZEBG_DataEntryValueStorageD2Ev";
}  // namespace symbol

/// The host's definition; null where there is none, or where it is the caller and falls back on the stand-in.
void* findHostDefinition(const char* symbol, const void* caller);

template <class Function>
Function* hostDefinition(const char* symbol, const void* caller) {
  return reinterpret_cast<Function*>(findHostDefinition(symbol, caller));
}

}  // namespace zeb
