#!/bin/sh
# Builds one libFuzzer target with clang and runs it for the given number of seconds, seeded from
# the test fixtures. Findings (crash-*, leak-*, timeout-*) land in build-fuzz/findings/TARGET/.
#   scripts/fuzz.sh xlsx|xls|text|photoname|template [SECONDS] [libFuzzer options...]
# e.g. "scripts/fuzz.sh xls 600 -fork=1 -ignore_crashes=1" runs on past each finding.
set -eu
target=${1:?"usage: scripts/fuzz.sh xlsx|xls|text|photoname|template [seconds]"}
seconds=${2:-600}
shift $(($# < 2 ? $# : 2))
root=$(cd "$(dirname "$0")/.." && pwd)
build="$root/build-fuzz"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_CXX_COMPILER=clang++ -DQUELLIO_FUZZ=ON -DQUELLIO_WERROR=OFF \
  -DQUELLIO_BUILD_TESTS=OFF -DQUELLIO_BUILD_BENCH=OFF >/dev/null
cmake --build "$build" -j2 --target "fuzz_$target"

corpus="$build/corpus/$target"
findings="$build/findings/$target"
mkdir -p "$corpus" "$findings"
fixtures="$root/tests/roster/fixtures"
case "$target" in
  xlsx) cp "$fixtures"/*.xlsx "$root"/data/demo.xlsx "$corpus"/ ;;
  xls) cp "$fixtures"/*.xls "$root"/data/demo.xls "$corpus"/ ;;
  text) cp "$fixtures"/*.txt "$corpus"/ ;;
  photoname) printf '张三,宣传部.jpg' >"$corpus/comma"; printf '李四，市场部.png' >"$corpus/wide" ;;
  template)
    # Seeded from the templates of a normal build when there is one (scripts/test.sh makes it).
    [ -d "$root/build/quellio/skin" ] || cmake --build "$build" -j2 --target factory
    cp "$root"/build/quellio/skin/*.jsk "$corpus"/ 2>/dev/null || cp "$build"/quellio/skin/*.jsk "$corpus"/ ;;
esac
cd "$findings"
QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 \
  "$build/tests/fuzz/fuzz_$target" -max_total_time="$seconds" -rss_limit_mb=2048 -timeout=60 \
  -print_final_stats=1 "$@" "$corpus"
