# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# cmake -DSOURCE=FILE -DDIRECTORY=DIRECTORY -P CopyIfAbsent.cmake
#
# Copies a file into a directory unless that has one of this name: it may hold what a user saved.

get_filename_component(name "${SOURCE}" NAME)
if(NOT EXISTS "${DIRECTORY}/${name}" AND NOT IS_SYMLINK "${DIRECTORY}/${name}")
  file(COPY "${SOURCE}" DESTINATION "${DIRECTORY}")
endif()
