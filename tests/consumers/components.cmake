# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Checks that every installed file belongs to a component, that private headers stay at home, and that the presets need
# no newer CMake than the project:
#   cmake -D source=DIR -D install_from=BUILD -D work=DIR -P components.cmake

cmake_minimum_required(VERSION 3.20)

function(list_installed result component)
  set(prefix "${work}/${component}")
  set(choice)
  if(NOT component STREQUAL all)
    set(choice --component "${component}")
  endif()
  execute_process(COMMAND "${CMAKE_COMMAND}" --install "${install_from}" --prefix "${prefix}" ${choice}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${output}")
  endif()
  file(GLOB_RECURSE files RELATIVE "${prefix}" "${prefix}/*")
  set(${result} "${files}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${work}")
list_installed(all all)
if(NOT all MATCHES "include/basemodule/GlobalHelper.h")
  message(FATAL_ERROR "the headers are not installed: ${all}")
endif()

set(rest "${all}")
set(components library development tools documentation)
if("bin/workbench" IN_LIST all)
  list(APPEND components workbench)
endif()
foreach(component IN LISTS components)
  list_installed(${component} ${component})
  if(NOT ${component})
    message(FATAL_ERROR "nothing belongs to the component '${component}'")
  endif()
  list(REMOVE_ITEM rest ${${component}})
endforeach()
if(rest)
  message(FATAL_ERROR "without a component: ${rest}")
endif()
foreach(tool IN ITEMS bin/meshquality bin/materials share/man/man1/meshquality.1 share/man/man1/materials.1
    share/bash-completion/completions/meshquality share/bash-completion/completions/materials
    bin/ConfigFiles/MaterialLibrary.json mesher/mesh.onnx samples/slivers.msh)
  if(NOT tool IN_LIST tools)
    message(FATAL_ERROR "not among the tools: ${tool}")
  endif()
endforeach()

# A header is private when it lies in a folder of that name; no public one may need it.
foreach(file IN LISTS all)
  if(file MATCHES "^include/.*/private/" OR file MATCHES "/(AtomicFile|EscapedText|FileReplacement|JsonNumber|NumberText|ValueCodec)[.]h$")
    message(FATAL_ERROR "private, yet installed: ${file}")
  elseif(file MATCHES "^include/")
    file(STRINGS "${work}/all/${file}" includes REGEX "#include <.*/private/")
    if(includes)
      message(FATAL_ERROR "${file} needs what is not installed: ${includes}")
    endif()
  endif()
endforeach()

# Version 2 of the presets came with CMake 3.20, version 3 with 3.21.
file(READ "${source}/CMakePresets.json" presets)
string(JSON version GET "${presets}" version)
string(JSON major GET "${presets}" cmakeMinimumRequired major)
string(JSON minor GET "${presets}" cmakeMinimumRequired minor)
file(STRINGS "${source}/CMakeLists.txt" minimum REGEX "^cmake_minimum_required")
if(NOT minimum STREQUAL "cmake_minimum_required(VERSION ${major}.${minor})" OR (minor LESS 21 AND version GREATER 2))
  message(FATAL_ERROR "presets of version ${version} for CMake ${major}.${minor}, but the project has ${minimum}")
endif()
