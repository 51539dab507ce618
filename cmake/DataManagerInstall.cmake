# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Install rules: libraries, headers under the paths by which they are included, and the package configuration.

include(CMakePackageConfigHelpers)

get_property(libraries GLOBAL PROPERTY DATAMANAGER_LIBRARIES)
foreach(library IN LISTS libraries)
  # The widget library needs VTK's rendering modules; who does not ask for it need not have them.
  set(export DataManagerTargets)
  if(library STREQUAL BaseWidget)
    set(export DataManagerBaseWidgetTargets)
  endif()
  install(TARGETS ${library} EXPORT ${export}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
  string(TOLOWER ${library} name)
  get_target_property(directory ${library} SOURCE_DIR)
  # Headers that serve only our own sources stay at home.
  install(DIRECTORY "${directory}/" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name}
    COMPONENT development FILES_MATCHING PATTERN "*.h" PATTERN "private" EXCLUDE)
  install(FILES "${PROJECT_BINARY_DIR}/generated/${name}/${name}/${name}_export.h"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name} COMPONENT development)
endforeach()

# A runtime that is no system package travels with the library that needs it, with its licence.
if(NOT OnnxRuntime_LIBRARY_FILE MATCHES "^/usr/lib/")
  install(PROGRAMS "${OnnxRuntime_LIBRARY_FILE}" DESTINATION ${CMAKE_INSTALL_LIBDIR} RENAME libonnxruntime.so.1
    COMPONENT library)
  get_filename_component(onnxruntime_prefix "${OnnxRuntime_LIBRARY_FILE}" DIRECTORY)
  install(FILES "${onnxruntime_prefix}/../share/doc/onnxruntime/copyright"
    DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME onnxruntime-copyright COMPONENT library OPTIONAL)
endif()
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT library)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
# Beside README.md as in the source, so that its links hold.
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation PATTERN Doxyfile EXCLUDE)
install(FILES model/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/model COMPONENT documentation)
install(FILES samples/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/samples COMPONENT documentation)
# The mesher writes here; the predictor reads "../temp/mesh.msh" beside the programs.
install(DIRECTORY DESTINATION temp COMPONENT tools)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/DataManager)
install(EXPORT DataManagerTargets NAMESPACE DataManager:: DESTINATION ${package_directory} COMPONENT development)
if(TARGET BaseWidget AND "BaseWidget" IN_LIST libraries)
  install(EXPORT DataManagerBaseWidgetTargets NAMESPACE DataManager:: DESTINATION ${package_directory}
    COMPONENT development)
endif()
configure_package_config_file(cmake/DataManagerConfig.cmake.in
  "${PROJECT_BINARY_DIR}/DataManagerConfig.cmake" INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/DataManagerConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/DataManagerConfig.cmake"
  "${PROJECT_BINARY_DIR}/DataManagerConfigVersion.cmake"
  cmake/FindOnnxRuntime.cmake
  DESTINATION ${package_directory} COMPONENT development)
file(RELATIVE_PATH datamanager_pc_prefix "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
configure_file(cmake/datamanager.pc.in "${PROJECT_BINARY_DIR}/datamanager.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/datamanager.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)
