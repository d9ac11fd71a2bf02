#!/usr/bin/env bash
# Builds Quellio and starts it on a demo program folder (build/demo) holding a sample roster of
# 200 participants and three awards. The folder is kept between runs; --fresh makes a new one.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
build=${QUELLIO_BUILD_DIR:-build}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --parallel "$(nproc)" --target quellio factory mkfactory

demo="$build/demo"
if [ "${1:-}" = "--fresh" ]; then
  rm -rf "$demo"
  shift
fi
if [ ! -f "$demo/quellio.db" ]; then
  "$build/tools/mkfactory" --data data --movies movies --out "$demo" --demo
fi
QUELLIO_HOME="$demo" exec "$build/quellio/quellio" "$@"
