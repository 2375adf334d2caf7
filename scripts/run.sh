#!/usr/bin/env bash
# Sets up, builds (optimised) and starts Quillora Pro. Extra arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DQP_TESTS=OFF > /dev/null
cmake --build build/release --target quillora
# Without a display the window cannot open: paint the bundled demo headless instead.
if [ $# -eq 0 ] && [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
  echo "No display found, so no window: painting the demo headless into demo.bmp instead." >&2
  echo "For the window, run from a desktop session or under a virtual screen: xvfb-run -a scripts/run.sh" >&2
  exec build/release/quillora --demo demo.bmp
fi
exec build/release/quillora "$@"
