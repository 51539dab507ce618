# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Install rules: libraries, headers under the paths by which they are included, and the package configuration.

include(CMakePackageConfigHelpers)

get_property(libraries GLOBAL PROPERTY DATAMANAGER_LIBRARIES)
install(TARGETS ${libraries} EXPORT DataManagerTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
foreach(library IN LISTS libraries)
  string(TOLOWER ${library} name)
  get_target_property(directory ${library} SOURCE_DIR)
  # Headers that serve only our own sources stay at home.
  install(DIRECTORY "${directory}/" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name}
    FILES_MATCHING PATTERN "*.h" PATTERN "private" EXCLUDE)
  install(FILES "${PROJECT_BINARY_DIR}/generated/${name}/${name}/${name}_export.h"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name})
endforeach()

# A runtime that is no system package travels with the libraries that need it, with its licence.
if(NOT OnnxRuntime_LIBRARY_FILE MATCHES "^/usr/lib/")
  install(PROGRAMS "${OnnxRuntime_LIBRARY_FILE}" DESTINATION ${CMAKE_INSTALL_LIBDIR} RENAME libonnxruntime.so.1)
  get_filename_component(onnxruntime_prefix "${OnnxRuntime_LIBRARY_FILE}" DIRECTORY)
  install(FILES "${onnxruntime_prefix}/../share/doc/onnxruntime/copyright"
    DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME onnxruntime-copyright OPTIONAL)
endif()
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
# The mesher writes here; the predictor reads "../temp/mesh.msh" beside the programs.
install(DIRECTORY DESTINATION temp)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/DataManager)
install(EXPORT DataManagerTargets NAMESPACE DataManager:: DESTINATION ${package_directory})
configure_package_config_file(cmake/DataManagerConfig.cmake.in
  "${PROJECT_BINARY_DIR}/DataManagerConfig.cmake" INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/DataManagerConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/DataManagerConfig.cmake"
  "${PROJECT_BINARY_DIR}/DataManagerConfigVersion.cmake"
  DESTINATION ${package_directory})
