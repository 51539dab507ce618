# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Debian packages, one a component, made by cpack: see scripts/package.sh and docs/packaging.md.

if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  message(FATAL_ERROR "Debian packages install below /usr: configure with the preset 'package'")
endif()

set(packaging "${PROJECT_SOURCE_DIR}/packaging/debian")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME datamanager)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "DataManager contributors <datamanager@example.org>" CACHE STRING "Maintainer of the packages")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_OUTPUT_FILE_PREFIX "${CPACK_PACKAGE_DIRECTORY}")
# What lies outside of the prefix, in /etc and /var, belongs to the packages, too.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
if(OnnxRuntime_IS_CARRIED)
  get_filename_component(runtime "${OnnxRuntime_LIBRARY_FILE}" DIRECTORY)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${runtime}")
endif()

# The copyright file of all packages: our licence, and the runtime's where it is carried.
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" datamanager_licence)
string(REGEX REPLACE "^BSD 3-Clause License\n\nCopyright[^\n]*\n\n" "" datamanager_licence "${datamanager_licence}")
string(REGEX REPLACE "\n+$" "" datamanager_licence "${datamanager_licence}")
string(REPLACE "\n\n" "\n.\n" datamanager_licence "${datamanager_licence}")
string(REPLACE "\n" "\n " datamanager_licence " ${datamanager_licence}")
set(datamanager_carried_copyright)
if(OnnxRuntime_IS_CARRIED)
  file(READ "${packaging}/copyright-onnxruntime" datamanager_carried_copyright)
  install(FILES "${onnxruntime_licence}" DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libdatamanager0
    RENAME onnxruntime-copyright COMPONENT library)
endif()
configure_file("${packaging}/copyright.in" "${PROJECT_BINARY_DIR}/debian/copyright" @ONLY)
datamanager_compress("${packaging}/changelog" changelog)

# datamanager_package(COMPONENT NAME SECTION DEPENDS SUMMARY DESCRIPTION): one package. DEPENDS, which may be empty, is
# what the program files themselves do not tell.
macro(datamanager_package component name section depends summary description)
  string(TOUPPER ${component} key)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${key}_PACKAGE_SOURCE datamanager)
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${depends}")
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${summary}\n${description}")
  install(FILES "${PROJECT_BINARY_DIR}/debian/copyright" DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
    COMPONENT ${component})
  install(FILES "${changelog}" DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
  if(EXISTS "${packaging}/${name}.lintian-overrides")
    install(FILES "${packaging}/${name}.lintian-overrides" DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
      RENAME ${name} COMPONENT ${component})
  endif()
endmacro()

set(same_version "(= ${PROJECT_VERSION})")
datamanager_package(library libdatamanager0 libs ""
  "working data of a simulation pre-processor, library"
  "DataManager holds the data between the user interface of a pre-processor for\nnumerical simulation and its model: \
interaction mode, selection, material\nlibraries, relative coordinate systems, and a predictor of the quality of\n\
tetrahedral meshes.\n.\nThis package contains the shared libraries.")
datamanager_package(development libdatamanager-dev libdevel "libdatamanager0 ${same_version}, qtbase5-dev"
  "working data of a simulation pre-processor, development files"
  "DataManager holds the data between the user interface of a pre-processor for\nnumerical simulation and its model.\n\
.\nThis package contains the headers and the files for CMake and pkg-config.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "datamanager-doc, libvtk9-dev")
datamanager_package(tools datamanager-tools science "libdatamanager0 ${same_version}"
  "quality of tetrahedral meshes, and material libraries"
  "The command meshquality measures tetrahedral meshes with eleven metrics, scores\nthem with a trained model, checks \
them against thresholds and compares them.\nThe command materials lists, compares, copies and checks material libraries.")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "gmsh, datamanager-doc")
datamanager_package(documentation datamanager-doc doc ""
  "working data of a simulation pre-processor, documentation"
  "DataManager holds the data between the user interface of a pre-processor for\nnumerical simulation and its model.\n\
.\nThis package contains its guides, descriptions of file formats and schemas.")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
if(TARGET workbench)
  datamanager_package(workbench datamanager-workbench science "datamanager-tools ${same_version}"
    "desktop workbench for material libraries and mesh quality"
    "The window over what the commands of datamanager-tools do: materials,\ncoordinate systems, selection and the \
quality of a mesh.")
endif()

# Our libraries only: nobody else's program shall find its runtime here.
get_property(libraries GLOBAL PROPERTY DATAMANAGER_LIBRARIES)
list(TRANSFORM libraries REPLACE "(.+)"
  "lib\\1 ${PROJECT_VERSION_MAJOR} libdatamanager0 (>= ${PROJECT_VERSION})\n")
string(JOIN "" shlibs ${libraries})
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/debian/shlibs" CONTENT "${shlibs}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${packaging}/triggers;${PROJECT_BINARY_DIR}/debian/shlibs")
set(CPACK_DEBIAN_TOOLS_PACKAGE_CONTROL_EXTRA "${packaging}/conffiles;${packaging}/postrm")

# The application's own shape, made of links.
set(home ${DATAMANAGER_INSTALL_HOME})
foreach(library IN ITEMS MaterialLibrary.json ExampleLibrary.json)
  datamanager_install_link(${home}/bin/ConfigFiles/${library} ${DATAMANAGER_INSTALL_CONFIG_DIR}/${library} tools)
endforeach()
datamanager_install_link(${home}/mesher ../../${DATAMANAGER_INSTALL_MESHER_DIR} tools)
datamanager_install_link(${home}/samples ../../${DATAMANAGER_INSTALL_SAMPLES_DIR} tools)
datamanager_install_link(${home}/share/datamanager ../../../${CMAKE_INSTALL_DATADIR}/datamanager tools)
datamanager_install_link(${home}/temp ${DATAMANAGER_INSTALL_TEMP_DIR} tools)

include(CPack)
