#!/usr/bin/env bash
# Source checks that need no build, run by CTest.
#
#   layout.sh layering SOURCE_DIR CORE_LINK...
#     quellio_core (src/core, src/stage and every feature folder outside view/) includes no
#     view/, console/ or chrome/ header, and nothing it links reaches Qt Widgets. CORE_LINK...
#     is everything quellio_core links, directly or through other targets, as
#     tests/CMakeLists.txt collected it at configure time.
#   layout.sh naming SOURCE_DIR
#     Names say what a thing does, not which form or control of an older program it copies: no
#     frm/cls/tm prefix before a capital, no _Click/_Timer handler names, and no mention of the
#     old movie player. The patterns are spelt so that this file passes its own check.
#
# Prints every finding as file:line: text and fails when there is one.
set -uo pipefail

check=${1:?layering or naming}
cd "${2:?source folder}" || exit 2
shift 2
found=0

# Prints the hits under a heading; remembers that something was found.
report() {
    local heading=$1 hits=$2
    [ -z "$hits" ] && return
    printf '%s\n%s\n\n' "$heading" "$hits"
    found=1
}

layering() {
    local dirs=() dir
    for dir in src/*/; do
        case "$dir" in src/app/ | src/console/ | src/chrome/) continue ;; esac
        dirs+=("$dir")
    done
    report "quellio_core includes a view/, console/ or chrome/ header:" "$(
        grep -rnE --include='*.cpp' --include='*.h' --exclude-dir=view \
            '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]([^">]*/)?(view|console|chrome)/' \
            "${dirs[@]}")"

    local link widgets=()
    for link in "$@"; do
        case "$link" in
        Qt6::*Widgets | Qt::*Widgets | Qt6::PrintSupport | Qt::PrintSupport | quellio_ui)
            widgets+=("$link") ;;
        esac
    done
    report "quellio_core links Qt Widgets through:" "${widgets[*]}"
    [ $# -eq 0 ] && report "quellio_core's links are unknown:" "none were given"
}

naming() {
    local places=(src tests bench tools movies)
    report "Names with a form, class or timer prefix:" "$(
        grep -rnIE '(^|[^A-Za-z0-9_])(frm|cls|tm)[A-Z]' "${places[@]}")"
    report "Names ending in an event-handler suffix:" "$(
        grep -rnIE '[A-Za-z0-9]_(C[l]ick|T[i]mer)([^A-Za-z0-9_]|$)' "${places[@]}")"
    report "The old movie player's name:" "$(grep -rnI 'F[l]ash' "${places[@]}")"
}

case "$check" in
layering) layering "$@" ;;
naming) naming ;;
*) echo "unknown check: $check" >&2; exit 2 ;;
esac
exit $found
