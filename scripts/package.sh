#!/usr/bin/env bash
# Builds the Debian package quellio_<version>_amd64.deb into the package build folder
# (build-package/, or $QUELLIO_BUILD_DIR) and checks its AppStream metainfo. Prints the path of
# the package on its last line.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
appstreamcli validate --no-net data/io.github.quellio.Quellio.metainfo.xml >&2

build=${QUELLIO_BUILD_DIR:-build-package}
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUELLIO_BUILD_TESTS=OFF \
  -DQUELLIO_BUILD_BENCH=OFF -DCMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON "${launcher[@]}" >&2
targets=(quellio factory)
if cmake --build "$build" --target help | grep -q '^quellio-verify:'; then
  targets+=(quellio-verify)
fi
nice cmake --build "$build" --parallel "$(nproc)" --target "${targets[@]}" >&2

rm -f "$build"/quellio_*.deb
(cd "$build" && cpack -G DEB >&2)
ls "$PWD/$build"/quellio_*_amd64.deb
