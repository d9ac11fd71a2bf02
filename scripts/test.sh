#!/usr/bin/env bash
# Installs what is missing, builds Quellio with warnings as errors, checks the formatting of the
# C++ and the lint of the movies, and runs every test. Extra arguments go to ctest (for example
# -R profile). QUELLIO_BUILD_DIR picks the build folder; QUELLIO_CMAKE_ARGS configures it anew.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
build=${QUELLIO_BUILD_DIR:-build}
# Configure once: later builds re-run CMake by themselves when a CMakeLists.txt changes.
if [ ! -f "$build/CMakeCache.txt" ] || [ -n "${QUELLIO_CMAKE_ARGS:-}" ]; then
  launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUELLIO_WERROR=ON \
    "${launcher[@]}" ${QUELLIO_CMAKE_ARGS:-} >/dev/null
fi
if ! check=$(cmake --build "$build" --target format-check 2>&1); then
  echo "$check"
  exit 1
fi
cmake --build "$build" --parallel "$(nproc)"
export QT_QPA_PLATFORM=offscreen
(cd "$build" && ctest --output-on-failure --parallel "$(nproc)" "$@")
bash scripts/test-ratio.sh
