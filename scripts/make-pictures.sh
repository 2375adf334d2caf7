#!/usr/bin/env bash
# Paints the README's pictures again: the main window and one picture per family of tools, each by
# its script in docs/ run headless. Builds the program (optimised, as scripts/run.sh does) if needed;
# QUILLORA=path/to/quillora uses a program already built instead.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ -n "${QUILLORA:-}" ]; then
  quillora="$(realpath "$QUILLORA")"
else
  scripts/setup.sh
  cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DQP_TESTS=OFF > /dev/null
  cmake --build build/release --target quillora
  quillora="$PWD/build/release/quillora"
fi
export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0

"$quillora" --script docs/main-window.qsc
# The guide's scripts write their pictures beside themselves; a picture taken from a workshop goes
# through a .bmp on the way, which is not kept.
cd docs/guide
for script in *.qsc; do
  echo "painting ${script%.qsc}.png"
  "$quillora" --script "$script"
done
rm -f ./*.bmp
