#!/usr/bin/env bash
# Installs what is missing, builds Quellio with warnings as errors, checks the formatting and
# runs every test. Extra arguments go to ctest (for example -R profile).
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
build=${QUELLIO_BUILD_DIR:-build}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUELLIO_WERROR=ON \
  ${QUELLIO_CMAKE_ARGS:-} >/dev/null
cmake --build "$build" --target format-check >/dev/null
cmake --build "$build" --parallel "$(nproc)"
export QT_QPA_PLATFORM=offscreen
(cd "$build" && ctest --output-on-failure --parallel "$(nproc)" "$@")
