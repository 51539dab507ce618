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

# A runtime that is no system package travels with the library that needs it, with its headers for applications that
# catch its exception, and with its licence.
if(OnnxRuntime_IS_CARRIED)
  install(FILES "${OnnxRuntime_LIBRARY_FILE}" DESTINATION ${DATAMANAGER_INSTALL_RUNTIME_DIR}/lib
    RENAME libonnxruntime.so.1 COMPONENT library)
  datamanager_install_link("${DATAMANAGER_INSTALL_RUNTIME_DIR}/lib/libonnxruntime.so" libonnxruntime.so.1 development)
  install(DIRECTORY "${OnnxRuntime_INCLUDE_DIR}/" DESTINATION ${DATAMANAGER_INSTALL_RUNTIME_DIR}/include/onnxruntime
    COMPONENT development FILES_MATCHING PATTERN "onnxruntime_*.h")
  get_filename_component(onnxruntime_prefix "${OnnxRuntime_LIBRARY_FILE}" DIRECTORY)
  set(onnxruntime_licence "${onnxruntime_prefix}/../share/doc/onnxruntime/copyright")
  if(EXISTS "${onnxruntime_licence}" AND NOT DATAMANAGER_DEBIAN_PACKAGES)
    install(FILES "${onnxruntime_licence}"
      DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME onnxruntime-copyright COMPONENT library)
  endif()
endif()
if(NOT DATAMANAGER_DEBIAN_PACKAGES)
  install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT library)
endif()
install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
# Beside README.md as in the source, so that its links hold.
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation
  PATTERN Doxyfile EXCLUDE PATTERN man EXCLUDE)
install(FILES model/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/model COMPONENT documentation)
install(FILES samples/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/samples COMPONENT documentation)
# The mesher writes here; the predictor reads "../temp/mesh.msh" beside the programs.
install(DIRECTORY DESTINATION ${DATAMANAGER_INSTALL_TEMP_DIR} COMPONENT tools)

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
# Static libraries do not know what they link, so who uses them names it all.
set(datamanager_pc_libraries)
set(datamanager_pc_packages)
if(NOT BUILD_SHARED_LIBS)
  set(datamanager_pc_packages " libcrypto")
  set(runtime)
  if(OnnxRuntime_IS_CARRIED)
    file(RELATIVE_PATH runtime "/prefix/${CMAKE_INSTALL_LIBDIR}" "/prefix/${DATAMANAGER_INSTALL_RUNTIME_DIR}/lib")
    set(runtime "-L\${libdir}/${runtime} -Wl,-rpath,\${libdir}/${runtime}")
  endif()
  set(vtk "${VTK_MAJOR_VERSION}.${VTK_MINOR_VERSION}")
  set(datamanager_pc_libraries " -L$<TARGET_LINKER_FILE_DIR:VTK::CommonMath> -lvtkCommonMath-${vtk} -lvtkCommonCore-${vtk} \
${runtime} -lonnxruntime")
endif()
configure_file(cmake/datamanager.pc.in "${PROJECT_BINARY_DIR}/generated/datamanager.pc.in" @ONLY)
file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/datamanager.pc" INPUT "${PROJECT_BINARY_DIR}/generated/datamanager.pc.in")
install(FILES "${PROJECT_BINARY_DIR}/datamanager.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)
if(DATAMANAGER_DEBIAN_PACKAGES)
  include(DataManagerPackages)
endif()
