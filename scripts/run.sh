#!/usr/bin/env bash
# Sets up, builds (optimised) and starts Quillora Pro. Extra arguments go to the program.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=Release -DQP_TESTS=OFF > /dev/null
cmake --build build/release --target quillora
exec build/release/quillora "$@"
