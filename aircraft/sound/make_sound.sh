#!/bin/bash
# Makes one sound.
#
#   make_sound.sh CUE FILE    CUE holds one line of recipes.txt; FILE is the wave file to write.
set -euo pipefail
export LC_ALL=C

# shellcheck source=aircraft/sound/chapters.sh
source "$(dirname "${BASH_SOURCE[0]}")/chapters.sh"
cue=$(realpath "$1") file=$(realpath -m "$2")

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
