#!/bin/bash
# Makes one sound.
#
#   make_sound.sh CUE FILE    CUE holds one line of recipes.txt; FILE is the wave file to write.
set -euo pipefail
export LC_ALL=C

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cue=$(realpath "$1") file=$(realpath -m "$2")
for chapter in studio switches chimes warnings machinery voices; do
  # shellcheck source=/dev/null
  source "$here/$chapter.sh"
done

IFS='|' read -r _ recipe words <"$cue"
read -r recipe <<<"$recipe"
read -r words <<<"$words"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
"$recipe" "$words"

# Moved into place whole: an interrupted build leaves no half sound behind.
mkdir -p "$(dirname "$file")"
cp finished.wav "$file.new"
mv "$file.new" "$file"
