#!/bin/bash
# Writes down what a recipe consists of: itself, the tools it uses, theirs, and the constants they all
# read. The file is touched only when that has changed, so that a build makes no other sound again.
#
#   print_recipe.sh RECIPE FILE
set -euo pipefail
# shellcheck source=aircraft/sound/chapters.sh
source "$(dirname "${BASH_SOURCE[0]}")/chapters.sh"

declare -A printed

# print_definition WORD: once, if it is a function or a constant of the chapters.
print_definition() {
  local text word
  [[ -z ${printed[$1]-} ]] || return 0
  printed[$1]=yes
  if text=$(declare -f "$1"); then
    echo "$text"
    for word in $(grep -oE '\w+' <<<"$text"); do print_definition "$word"; done
  elif [[ $1 =~ ^[A-Z_]+$ ]]; then
    declare -p "$1" 2>/dev/null || true
  fi
}

print_definition "$1" >"$2.new"
cmp -s "$2.new" "$2" || cp "$2.new" "$2"
rm "$2.new"
