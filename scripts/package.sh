#!/usr/bin/env bash
# Builds the Debian package of Quillora Pro into build/package/ (quillora-pro_VERSION_ARCH.deb).
# Install it with: sudo apt-get install ./build/package/quillora-pro_*.deb
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build/package -G Ninja -DCMAKE_BUILD_TYPE=Release -DQP_TESTS=OFF -DQP_BENCH=OFF \
      -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
cmake --build build/package
(cd build/package && cpack -G DEB)
ls build/package/*.deb
