# Compiler settings and the few helpers that every target uses.
include_guard()

if(PROJECT_IS_TOP_LEVEL)
  # All programs in one folder and all libraries in its neighbour, as after an installation: $ORIGIN/../lib is right in
  # both.
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
  file(RELATIVE_PATH libraryFromProgram ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
  set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
  set(CMAKE_INSTALL_RPATH $ORIGIN/${libraryFromProgram} $ORIGIN)

  if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
  endif()
endif()

# Language, warnings and sanitizers of everything in this build. A macro, since it sets variables of the caller.
macro(zeb_compiler_settings)
  set(CMAKE_CXX_STANDARD 20)
  set(CMAKE_CXX_STANDARD_REQUIRED ON)
  set(CMAKE_CXX_EXTENSIONS OFF)
  if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    add_compile_options(-Wall -Wextra -Wconversion -Wshadow $<$<BOOL:${ZEB_WERROR}>:-Werror>)
    # Optimized, g++ 12 takes every "text" + std::string(...) for a copy onto itself; its successors do not.
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      add_compile_options($<$<CONFIG:Release>:-Wno-restrict>)
    endif()
  endif()
  # RUNPATH, not RPATH: LD_LIBRARY_PATH may still put a host's own companion library in front.
  add_link_options(-Wl,--enable-new-dtags)
  if(ZEB_SANITIZE)
    add_compile_options(-fsanitize=${ZEB_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ZEB_SANITIZE})
  elseif(NOT ZEB_BUILD_FUZZERS AND (ZEB_BUILD_STANDALONE OR ZEB_COMPANION_LIBRARIES))
    # A symbol that no linked library has is an error when a library is built, not when a host starts. (The sanitizers'
    # runtime is in the program, so libraries leave its symbols open.)
    add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:-Wl,-z,defs>)
  endif()
endmacro()

# zeb_sources(<variable> <folder>...): the folders' sources, subfolders not included. A folder without sources yet
# contributes an empty one, so that its target exists.
function(zeb_sources result)
  set(found)
  foreach(folder IN LISTS ARGN)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
    list(APPEND found ${sources})
  endforeach()
  if(NOT found)
    set(found ${PROJECT_BINARY_DIR}/empty.cpp)
    file(CONFIGURE OUTPUT ${found} CONTENT "// Stands in for a folder that has no sources yet.\n")
  endif()
  set(${result} ${found} PARENT_SCOPE)
endfunction()

# A shared library that carries the project's version in its file name and the major number in its SONAME, and that
# finds its siblings beside it.
function(zeb_versioned target)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH $ORIGIN)
endfunction()
