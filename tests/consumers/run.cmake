# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Configures, builds and runs one consumer project:
#   cmake -D consumer=NAME -D source=DIR -D work=DIR -D options=LIST [-D install_from=BUILD] -P run.cmake

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${work}")
if(install_from)
  run("${CMAKE_COMMAND}" --install "${install_from}" --prefix "${work}/prefix")
  # What is installed has to do without what this machine has set up for building.
  list(APPEND options "-DCMAKE_PREFIX_PATH=${work}/prefix" -DONNXRUNTIME_ROOT=)
  set(ENV{DATAMANAGER_DEPS_DIR} "${work}/none")
  unset(ENV{ONNXRUNTIME_ROOT})
endif()
run("${CMAKE_COMMAND}" -G Ninja -S "${source}/tests/consumers/${consumer}" -B "${work}/build"
  "-DDATAMANAGER_SOURCE=${source}" ${options})
run("${CMAKE_COMMAND}" --build "${work}/build" --target consumer)
file(GLOB_RECURSE program "${work}/build/consumer")
run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${program}")
if(NOT output MATCHES "consumer: ok")
  message(FATAL_ERROR "${output}")
endif()
