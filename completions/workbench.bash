# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Completion of workbench for bash: it takes what every Qt program takes.

_workbench()
{
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  case "$previous" in
    -platform) mapfile -t COMPREPLY < <(compgen -W 'xcb wayland offscreen' -- "$current") ;;
    *) mapfile -t COMPREPLY < <(compgen -W '-platform -style -stylesheet' -- "$current") ;;
  esac
} && complete -F _workbench workbench
