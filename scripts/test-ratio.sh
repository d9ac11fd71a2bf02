#!/usr/bin/env bash
# Prints the lines of tests against the lines of code and their ratio.
# A line counts when it is not blank and not only a comment: lines that are empty after
# trimming, and lines starting with "//", "/*", "*" or "#" followed by a blank (CMake and shell
# comments) are left out. Code is src/, movies/ and tools/ (C++, QML, JavaScript); tests are
# tests/ (C++ and the test scripts). Fixtures and generated files are not counted.
set -euo pipefail
cd "$(dirname "$0")/.."

count() {
    find "$@" -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.qml' -o -name '*.js' \
        -o -name '*.sh' -o -name '*.cmake' \) -not -path '*/fixtures/*' -print0 |
        xargs -0 cat |
        grep -v -E '^[[:space:]]*$|^[[:space:]]*(//|/\*|\*|# )' | wc -l
}

code=$(count src movies tools)
tests=$(count tests)
awk -v t="$tests" -v c="$code" 'BEGIN {
    printf "test lines %d, code lines %d, ratio %.2f\n", t, c, (c ? t / c : 0) }'
