# What an installation holds: libraries, public headers (.h; internal ones are .hpp), the tool, and the files by which
# CMake and pkg-config find the library.
include_guard()
include(CMakePackageConfigHelpers)

set(headerFolder ${CMAKE_INSTALL_INCLUDEDIR}/ZEBKNCompParm)
set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/ZEBKNCompParm)

set(installedLibraries ZEBPlatform ZEBKNCompParm)
set(headerFolders engine frame blocks cmx stdcmp material platform)
foreach(standIn ZEBStandalone ZEBStandaloneMPI)
  if(TARGET ${standIn})
    list(APPEND installedLibraries ${standIn})
  endif()
endforeach()
if(TARGET ZEBStandalone)
  list(APPEND headerFolders standalone)
endif()
install(TARGETS ${installedLibraries} EXPORT ZEBKNCompParmTargets)
if(TARGET compparm-bin)
  install(TARGETS compparm-bin)
endif()

foreach(folder IN LISTS headerFolders)
  install(DIRECTORY ${folder} DESTINATION ${headerFolder} FILES_MATCHING PATTERN "*.h")
endforeach()
install(FILES ZEBKNCompParm.h DESTINATION ${headerFolder})

install(EXPORT ZEBKNCompParmTargets NAMESPACE ZEBKNCompParm:: DESTINATION ${packageFolder})
configure_package_config_file(cmake/ZEBKNCompParmConfig.cmake.in ZEBKNCompParmConfig.cmake
  INSTALL_DESTINATION ${packageFolder})
write_basic_package_version_file(ZEBKNCompParmConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/ZEBKNCompParmConfig.cmake
  ${PROJECT_BINARY_DIR}/ZEBKNCompParmConfigVersion.cmake
  DESTINATION ${packageFolder})

# The prefix is told from where the .pc file lies, so that an installation may be moved.
set(pcFolder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH prefixFromPc /${pcFolder} /)
configure_file(cmake/ZEBKNCompParm.pc.in ZEBKNCompParm.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ZEBKNCompParm.pc DESTINATION ${pcFolder})

if(TARGET compparm-bin)
  install(FILES tools/compparm/completion.bash RENAME compparm
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES docs/compparm.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
