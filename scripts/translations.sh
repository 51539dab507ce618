#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Brings the translation files up to date with the texts in the sources; those that lack a translation are then marked
# "unfinished". English texts are those of the sources.
#   scripts/translations.sh [DIRECTORY]      where to, instead of translations/
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-translations}
lupdate=$(command -v lupdate || echo /usr/lib/qt5/bin/lupdate)

update() { # CATALOGUE FOLDER...
  local language
  for language in en zh_CN; do
    "$lupdate" -silent -no-obsolete -locations none -extensions cpp,h -I . -I apps -I platform \
      -disable-heuristic sametext -disable-heuristic similartext -disable-heuristic number \
      -source-language en -target-language "$language" "${@:2}" -ts "$target/$1_$language.ts"
  done
  perl -0pi -e 's{<source>([^<]*)</source>(\s*)<translation type="unfinished"></translation>}{<source>$1</source>$2<translation>$1</translation>}g' \
    "$target/$1_en.ts"
}

update datamanager datamanager platform
update tools apps/console apps/materials apps/meshquality
update workbench apps/workbench
