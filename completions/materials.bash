# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Completion of materials for bash.

# The word before the cursor as the program will get it: bash parts words at colons, so "project:DIR" comes as three.
_materials_library()
{
  local word=$1
  if [[ $word == project:* ]]; then
    # Only what follows the colon is replaced on the command line.
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "${word#project:}")
  else
    if [[ project: == "$word"* ]]; then compopt -o nospace 2>/dev/null; fi
    mapfile -t COMPREPLY < <(compgen -W 'software project:' -- "$word")
  fi
}

_materials()
{
  local current=${COMP_WORDS[COMP_CWORD]} previous='' command=${COMP_WORDS[1]:-}
  local options='' i=$COMP_CWORD
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W 'list show export import check --help' -- "$current")
    return
  fi
  case "$command" in
    list | show | check) options='--library --plain --json --language --help' ;;
    export) options='--library --plain --format --output --language --help' ;;
    import) options='--library --plain --update --dry-run --json --language --help' ;;
    *) return ;;
  esac

  [ "$current" = : ] && current=''
  if [ "${COMP_WORDS[i - 1]}" = : ]; then i=$((i - 1)); fi
  if [ "${COMP_WORDS[i]}" = : ] && [ "${COMP_WORDS[i - 1]}" = project ]; then
    current=project:$current
    i=$((i - 1))
  fi
  if [ "$i" -gt 0 ]; then previous=${COMP_WORDS[i - 1]}; fi

  case "$previous" in
    --library) _materials_library "$current"; return ;;
    --language) mapfile -t COMPREPLY < <(compgen -W 'English Chinese' -- "$current"); return ;;
    --format) mapfile -t COMPREPLY < <(compgen -W 'csv json' -- "$current"); return ;;
  esac
  if [[ $current == project:* ]]; then
    _materials_library "$current"
  elif [[ $current == --* && $previous != --output ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
  elif [[ $command == @(export|import|check) ]]; then
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
    # The source of an import may be a library as well.
    if [ "$command" = import ]; then
      mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W 'software' -- "$current")
    fi
  fi
} && complete -F _materials materials
