# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Completion of workbench for bash: it takes a file, options of its own, and what every Qt program takes.

_workbench()
{
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  case "$previous" in
    --language) mapfile -t COMPREPLY < <(compgen -W 'English Chinese' -- "$current") ;;
    -platform) mapfile -t COMPREPLY < <(compgen -W 'xcb wayland offscreen' -- "$current") ;;
    *)
      if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--help --language --version -platform -style -stylesheet' -- "$current")
      else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
      fi
      ;;
  esac
} && complete -F _workbench workbench
