# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Where an install puts what. The application has a shape of its own, in which the programs find what they need beside
# them: bin/, bin/ConfigFiles/, mesher/, temp/, samples/. An ordinary install has this shape at its prefix. On a Debian
# system it stands below lib/datamanager, made of links where the file system's rules want a file elsewhere.
# Everything but DATAMANAGER_INSTALL_CONFIG_DIR is relative to the prefix or absolute.

set(DATAMANAGER_INSTALL_HOME ".")
set(DATAMANAGER_INSTALL_PROGRAM_DIR "${CMAKE_INSTALL_BINDIR}")
set(DATAMANAGER_INSTALL_CONFIG_DIR "${CMAKE_INSTALL_BINDIR}/ConfigFiles")
set(DATAMANAGER_INSTALL_MESHER_DIR mesher)
set(DATAMANAGER_INSTALL_SAMPLES_DIR samples)
set(DATAMANAGER_INSTALL_TEMP_DIR temp)
if(DATAMANAGER_DEBIAN_PACKAGES)
  set(DATAMANAGER_INSTALL_HOME lib/datamanager)
  set(DATAMANAGER_INSTALL_PROGRAM_DIR lib/datamanager/bin)
  set(DATAMANAGER_INSTALL_CONFIG_DIR /etc/datamanager)
  set(DATAMANAGER_INSTALL_MESHER_DIR "${CMAKE_INSTALL_DATADIR}/datamanager/mesher")
  set(DATAMANAGER_INSTALL_SAMPLES_DIR "${CMAKE_INSTALL_DATADIR}/datamanager/samples")
  set(DATAMANAGER_INSTALL_TEMP_DIR /var/lib/datamanager/temp)
endif()
# A model runtime that is no system package travels here, in the shape of a prefix.
set(DATAMANAGER_INSTALL_RUNTIME_DIR "${CMAKE_INSTALL_LIBDIR}/datamanager/onnxruntime")
file(RELATIVE_PATH DATAMANAGER_PROGRAM_RPATH
  "/prefix/${DATAMANAGER_INSTALL_PROGRAM_DIR}" "/prefix/${CMAKE_INSTALL_LIBDIR}")

# datamanager_install_link(PATH TARGET COMPONENT): a symbolic link at PATH, relative to the prefix, to TARGET.
function(datamanager_install_link path target component)
  get_filename_component(directory "${path}" DIRECTORY)
  get_filename_component(name "${path}" NAME)
  set(made "${PROJECT_BINARY_DIR}/links/${directory}")
  file(MAKE_DIRECTORY "${made}")
  file(CREATE_LINK "${target}" "${made}/${name}" SYMBOLIC)
  install(FILES "${made}/${name}" DESTINATION "${directory}" COMPONENT ${component})
endfunction()

# datamanager_install_program(TARGET [COMPONENT NAME]): a program with its manual page, docs/man/TARGET.1, and its shell
# completion, completions/TARGET.bash; both have to be there. On a Debian system it is started by
# packaging/debian/TARGET.launcher, if that is there, otherwise by a link.
function(datamanager_install_program target)
  if(NOT DATAMANAGER_INSTALL)
    return()
  endif()
  cmake_parse_arguments(PARSE_ARGV 1 program "" COMPONENT "")
  if(NOT program_COMPONENT)
    set(program_COMPONENT tools)
  endif()
  install(TARGETS ${target} RUNTIME DESTINATION "${DATAMANAGER_INSTALL_PROGRAM_DIR}" COMPONENT ${program_COMPONENT})
  set(manual "${PROJECT_SOURCE_DIR}/docs/man/${target}.1")
  if(DATAMANAGER_DEBIAN_PACKAGES)
    set(launcher "${PROJECT_SOURCE_DIR}/packaging/debian/${target}.launcher")
    if(EXISTS "${launcher}")
      install(PROGRAMS "${launcher}" DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME ${target}
        COMPONENT ${program_COMPONENT})
    else()
      datamanager_install_link("${CMAKE_INSTALL_BINDIR}/${target}"
        "../${DATAMANAGER_INSTALL_PROGRAM_DIR}/${target}" ${program_COMPONENT})
    endif()
    datamanager_compress("${manual}" manual)
  endif()
  install(FILES "${manual}" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${program_COMPONENT})
  install(FILES "${PROJECT_SOURCE_DIR}/completions/${target}.bash"
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ${target}
    COMPONENT ${program_COMPONENT})
endfunction()

# datamanager_compress(FILE RESULT [NAME]): a gzip copy without time and name, so that builds repeat; its path in RESULT.
function(datamanager_compress file result)
  get_filename_component(name "${file}" NAME)
  if(ARGC GREATER 2)
    set(name "${ARGV2}")
  endif()
  set(compressed "${PROJECT_BINARY_DIR}/compressed/${name}.gz")
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/compressed")
  execute_process(COMMAND gzip -9nc "${file}" OUTPUT_FILE "${compressed}" COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  set(${result} "${compressed}" PARENT_SCOPE)
endfunction()
