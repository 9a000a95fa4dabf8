# shellcheck shell=bash
# What the scripts beside this file share. Sourced; sets `root` and `galley`, does nothing else.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# The tool that prints pages. A caller that has built one itself names it in GALLEY.
galley=${GALLEY:-$root/build/release/galley}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# quietly LOG COMMAND...: runs COMMAND; what it prints goes to build/LOG and is shown only when it
# fails.
quietly() {
    local log=$root/build/$1
    shift
    mkdir -p "$root/build"
    rm -f "$log"  # may be that of another user, root
    if ! "$@" >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        fail "failed: $*"
    fi
}

# as_root COMMAND...: by way of sudo where this is another user.
as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs what printing a page needs and brings build/release/galley up to date, with all that
# `cmake --install` would install. A tree that is configured here leaves the tests out, so that it
# needs no test framework.
build_tool() {
    [[ -z ${GALLEY-} ]] || return 0
    mkdir -p "$root/build"
    (
        cd "$root" || fail "cannot enter $root"
        flock 9  # two pages may be asked for at once
        scripts/setup render
        if [[ ! -e build/release/build.ninja ]]; then
            printf 'building galley, about a minute\n' >&2
            quietly tool.log cmake --preset release -DGALLEY_BUILD_TESTS=OFF
        fi
        quietly tool.log cmake --build --preset release --target galley_installed
    ) 9>"$root/build/lock"
}

# Brings the programs that measure, in build/bench/bench, up to date, once what they need has been
# installed.
build_bench() {
    mkdir -p "$root/build"
    (
        cd "$root" || fail "cannot enter $root"
        flock 9
        scripts/setup bench
        if [[ ! -e build/bench/build.ninja ]]; then
            quietly bench.log cmake --preset bench
        fi
        quietly bench.log cmake --build --preset bench
    ) 9>"$root/build/lock"
}

# print_page DOCUMENT [TOOL OPTIONS...]: the page of DOCUMENT, styled by the sheet beside it.
print_page() {
    local document=$1 sheet=${1%.*}.css
    shift
    if [[ -e $sheet ]]; then
        set -- --css "$sheet" "$@"
    fi
    "$galley" "$document" "$@"
}
