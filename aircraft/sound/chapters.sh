# Every recipe and the tools they share.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for chapter in studio switches chimes warnings machinery voices; do
  # shellcheck source=/dev/null
  source "$here/$chapter.sh"
done
