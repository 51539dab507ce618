# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Completion of meshquality for bash.

_meshquality()
{
  local current=${COMP_WORDS[COMP_CWORD]} previous='' command=${COMP_WORDS[1]:-}
  local metrics='Volume EdgeRatio AspectRatio AspectGamma Condition Jacobian RadiusRatio RelativeSizeSquared
    ScaledJacobian Shape ShapeAndSize'
  local options=''
  COMPREPLY=()
  if [ "$COMP_CWORD" -gt 0 ]; then previous=${COMP_WORDS[COMP_CWORD - 1]}; fi

  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W 'report check compare model predict --help --version' -- "$current")
    return
  fi
  case "$command" in
    report) options='--json --jsonl --csv --vtu --html --worst --by --histogram --by-region --model --language --help' ;;
    check) options='--profile --print-profile --language --help' ;;
    compare) options='--model --language --help' ;;
    model) options='--json --language --help' ;;
    predict) options='--language --help' ;;
    *) return ;;
  esac
  case "$previous" in
    --by | --histogram) mapfile -t COMPREPLY < <(compgen -W "$metrics" -- "$current"); return ;;
    --worst) return ;;
    --language) mapfile -t COMPREPLY < <(compgen -W 'English Chinese' -- "$current"); return ;;
  esac
  if [[ $current == --* && ($command == model || $previous != --@(json|csv|vtu|html|model|profile)) ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
  elif [ "$command" != predict ]; then
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
  fi
} && complete -F _meshquality meshquality
