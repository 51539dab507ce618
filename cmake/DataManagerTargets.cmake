# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# What every target of this project has in common.

# Compile settings of our own code.
function(datamanager_compile_settings target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  # Results must not depend on the machine: no contraction of a product and a sum into one rounding.
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -ffp-contract=off
    $<$<BOOL:${DATAMANAGER_DEVELOPER}>:-Werror>)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    AUTOMOC ON
    INSTALL_RPATH "$ORIGIN/${DATAMANAGER_PROGRAM_RPATH}")
  if(DATAMANAGER_SANITIZERS)
    target_compile_options(${target} PRIVATE
      -fsanitize=${DATAMANAGER_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${DATAMANAGER_SANITIZERS})
  endif()
  if(DATAMANAGER_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -fno-inline)
    target_link_options(${target} PRIVATE --coverage)
  endif()
endfunction()

# Compiles headers of others once for all sources of a target, where the build asks for it. The sources include what they
# use all the same.
function(datamanager_precompile target)
  if(DATAMANAGER_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# Hidden visibility alone lets templates of the standard library out. What is exported are the namespaces of our
# libraries, under a symbol version of this series, and nothing else.
function(datamanager_limit_exports target)
  if(NOT UNIX OR APPLE)
    return()
  endif()
  set(script "${PROJECT_BINARY_DIR}/generated/${target}.map")
  # A question mark stands for the blank of a demangled name such as "vtable for DataManager::CaseData".
  set(patterns "*?for?GlobalConfig;")
  foreach(scope IN ITEMS DataManager BaseModule DataModel ConfigOption BaseWidget QJsonHelper GlobalConfig)
    string(APPEND patterns " ${scope}::*; *?for?${scope}::*; *thunk?to?${scope}::*;")
  endforeach()
  file(CONFIGURE OUTPUT "${script}" CONTENT
    "DATAMANAGER_${PROJECT_VERSION_MAJOR} {\n  global:\n    extern \"C++\" { ${patterns} };\n  local: *;\n};\n")
  target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()

# A library whose headers are included as <name-in-lower-case/Header.h>, with hidden visibility and an export macro
# generated into <name-in-lower-case/name_export.h>.
function(datamanager_add_library target)
  string(TOLOWER ${target} directory)
  add_library(${target} ${ARGN})
  datamanager_compile_settings(${target})
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    INSTALL_RPATH "$ORIGIN")
  if(BUILD_SHARED_LIBS)
    datamanager_limit_exports(${target})
  else()
    string(TOUPPER ${target} macro)
    target_compile_definitions(${target} PUBLIC ${macro}_STATIC_DEFINE)
  endif()
  set(generated "${PROJECT_BINARY_DIR}/generated/${directory}")
  generate_export_header(${target}
    EXPORT_FILE_NAME "${generated}/${directory}/${directory}_export.h")
  get_filename_component(root "${CMAKE_CURRENT_SOURCE_DIR}" DIRECTORY)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${root}>
    $<BUILD_INTERFACE:${generated}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_property(GLOBAL APPEND PROPERTY DATAMANAGER_LIBRARIES ${target})
endfunction()

# Compiles every header of our libraries alone, so that each can be included first; of the given static libraries, of
# which the programs are made, those that no source of the same name includes first.
function(datamanager_check_headers)
  get_property(libraries GLOBAL PROPERTY DATAMANAGER_LIBRARIES)
  list(APPEND libraries ${ARGN})
  foreach(library IN LISTS libraries)
    if(NOT TARGET ${library})
      continue()
    endif()
    get_target_property(directory ${library} SOURCE_DIR)
    get_filename_component(root "${directory}" DIRECTORY)
    file(GLOB_RECURSE headers RELATIVE "${root}" "${directory}/*.h")
    set(sources)
    foreach(header IN LISTS headers)
      string(REGEX REPLACE "h$" "cpp" user "${root}/${header}")
      if(library IN_LIST ARGN AND EXISTS "${user}")
        continue()
      endif()
      set(source "${PROJECT_BINARY_DIR}/headers/${header}.cpp")
      file(CONFIGURE OUTPUT "${source}" CONTENT "#include <${header}>\n")
      list(APPEND sources "${source}")
    endforeach()
    if(NOT sources)
      continue()
    endif()
    add_library(${library}Headers OBJECT ${sources})
    datamanager_compile_settings(${library}Headers)
    target_compile_options(${library}Headers PRIVATE -O0 -g0 -fno-sanitize=all)
    set_target_properties(${library}Headers PROPERTIES AUTOMOC OFF)
    target_link_libraries(${library}Headers PRIVATE ${library})
    if(library STREQUAL DataManager)
      target_link_libraries(${library}Headers PRIVATE VTK::CommonMath OnnxRuntime::OnnxRuntime)
    endif()
  endforeach()
endfunction()
