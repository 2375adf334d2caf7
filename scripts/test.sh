#!/usr/bin/env bash
# Sets up, builds the tests under AddressSanitizer and UndefinedBehaviorSanitizer, runs every test
# headless.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build/test -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQP_SANITIZE=ON -DQP_TESTS=ON \
      -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" > /dev/null
cmake --build build/test
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build/test --output-on-failure "$@"
