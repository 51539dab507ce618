# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Does what getting-started.md tells, with the files that are installed beside it, and compares what the program prints
# with what the page shows:
#   cmake -D build=DIR -D documents=RELATIVE_DIR -D work=DIR -P getting-started.cmake

function(run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY "${work}"
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}\n${errors}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${work}")
run("${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/datamanager")
file(COPY "${work}/datamanager/${documents}/getting-started/" DESTINATION "${work}/first-steps")
run("${CMAKE_COMMAND}" -S first-steps -B first-steps/build -G Ninja "-DCMAKE_PREFIX_PATH=${work}/datamanager")
run("${CMAKE_COMMAND}" --build first-steps/build)
run(first-steps/build/first-steps datamanager/samples/plate-with-hole.msh datamanager/mesher/mesh.onnx)

file(READ "${work}/datamanager/${documents}/getting-started.md" page)
string(FIND "${page}" "```\n${output}" place)
if(place EQUAL -1)
  message(FATAL_ERROR "getting-started.md does not show this:\n${output}")
endif()
