# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Finds ONNX Runtime with its C and C++ headers and defines the target OnnxRuntime::OnnxRuntime.
# Looked at, in this order: ONNXRUNTIME_ROOT (variable, then environment), the runtime that was installed with this file,
# the prefix that scripts/setup.sh makes on systems without a package, the system.
# OnnxRuntime_IS_CARRIED tells whether it is no system package, so that who links it has to bring it along.

set(ONNXRUNTIME_ROOT "$ENV{ONNXRUNTIME_ROOT}" CACHE PATH "Prefix of an ONNX Runtime install (include/, lib/)")
if(DEFINED ENV{DATAMANAGER_DEPS_DIR})
  set(_onnxruntime_deps "$ENV{DATAMANAGER_DEPS_DIR}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
  set(_onnxruntime_deps "$ENV{XDG_CACHE_HOME}/datamanager")
else()
  set(_onnxruntime_deps "$ENV{HOME}/.cache/datamanager")
endif()
file(GLOB _onnxruntime_private "${_onnxruntime_deps}/onnxruntime-*")
list(PREPEND _onnxruntime_private "${CMAKE_CURRENT_LIST_DIR}/../../datamanager/onnxruntime")

find_path(OnnxRuntime_INCLUDE_DIR onnxruntime_cxx_api.h
  HINTS ${ONNXRUNTIME_ROOT} ${_onnxruntime_private}
  PATH_SUFFIXES include/onnxruntime include/onnxruntime/core/session include)
find_library(OnnxRuntime_LIBRARY NAMES onnxruntime libonnxruntime.so.1
  HINTS ${ONNXRUNTIME_ROOT} ${_onnxruntime_private}
  PATH_SUFFIXES lib lib64)

if(OnnxRuntime_INCLUDE_DIR AND EXISTS "${OnnxRuntime_INCLUDE_DIR}/onnxruntime_c_api.h")
  file(STRINGS "${OnnxRuntime_INCLUDE_DIR}/onnxruntime_c_api.h" _onnxruntime_version
    REGEX "^#define ORT_API_VERSION [0-9]+")
  string(REGEX REPLACE ".* ([0-9]+)$" "1.\\1" OnnxRuntime_VERSION "${_onnxruntime_version}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OnnxRuntime
  REQUIRED_VARS OnnxRuntime_LIBRARY OnnxRuntime_INCLUDE_DIR
  VERSION_VAR OnnxRuntime_VERSION
  REASON_FAILURE_MESSAGE "run scripts/setup.sh, or pass -DONNXRUNTIME_ROOT=DIR")

if(OnnxRuntime_FOUND)
  get_filename_component(OnnxRuntime_LIBRARY_FILE "${OnnxRuntime_LIBRARY}" REALPATH)
  set(OnnxRuntime_IS_CARRIED ON)
  if(OnnxRuntime_LIBRARY_FILE MATCHES "^/usr/lib/([^/]+/)?libonnxruntime[^/]*$")
    set(OnnxRuntime_IS_CARRIED OFF)
  endif()
endif()
if(OnnxRuntime_FOUND AND NOT TARGET OnnxRuntime::OnnxRuntime)
  add_library(OnnxRuntime::OnnxRuntime SHARED IMPORTED)
  set_target_properties(OnnxRuntime::OnnxRuntime PROPERTIES
    IMPORTED_LOCATION "${OnnxRuntime_LIBRARY_FILE}"
    IMPORTED_SONAME libonnxruntime.so.1
    INTERFACE_INCLUDE_DIRECTORIES "${OnnxRuntime_INCLUDE_DIR}")
endif()
mark_as_advanced(OnnxRuntime_INCLUDE_DIR OnnxRuntime_LIBRARY)
