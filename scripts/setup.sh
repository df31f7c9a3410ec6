# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# The other scripts source this file first. It stops the script at the first error and
# changes to the project's folder; the caller's folder is in OLDPWD. With --help, it prints the
# script's opening comment and exits. It also defines functions that several scripts need.
set -euo pipefail

script=$(realpath "$0")
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Prints the opening comment of the running script.
print_help() {
    sed -n '1d; /^#/!q; /SPDX-/d; s/^# \{0,1\}//p' "$script"
}

# Ends a script that was called with wrong arguments.
usage_error() {
    print_help >&2
    exit 2
}

case " $* " in
*" --help "*)
    print_help
    exit
    ;;
esac

# quietly COMMAND...: prints the command's output only if it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 || status=$?
    if [ "$status" -ne 0 ]; then
        cat "$log" >&2
        echo "failed: $*" >&2
    fi
    rm "$log"
    return "$status"
}

# configure FOLDER PRESET [OPTION...]: configures a build without tests and examples, unless an option
# asks for them.
configure() {
    quietly cmake --preset "$2" -B "$1" -DZOGLES_BUILD_TESTS=OFF -DZOGLES_BUILD_EXAMPLES=OFF "${@:3}"
}

# build_in FOLDER PRESET [OPTION...]: configures and builds everything there.
build_in() {
    echo "== Building in $1"
    configure "$@"
    cmake --build "$1"
}

# headless COMMAND...: runs it with the software driver on a virtual X server.
headless() {
    LIBGL_ALWAYS_SOFTWARE=1 xvfb-run -a -s "-screen 0 1920x1080x24 -noreset" "$@"
}

# on_display COMMAND...: runs it on the user's display, or headless if there is none.
on_display() {
    if [ -n "${DISPLAY:-}" ]; then
        "$@"
    else
        headless "$@"
    fi
}

# need_display [ARGUMENT...]: if there is no display, runs the whole script again, headless and with
# these arguments, and exits.
need_display() {
    if [ -z "${DISPLAY:-}" ]; then
        headless "$script" "$@"
        exit
    fi
}

# missing_packages SECTION...: prints the packages of these sections that are not installed, one per line.
missing_packages() {
    local section package
    for section in "$@"; do
        sed -n "s/^$section: //p" scripts/packages.txt
    done | tr ' ' '\n' | while read -r package; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            echo "$package"
        fi
    done
}

# Runs a command as root.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "not root and no sudo: cannot run $*" >&2
        return 1
    fi
}

# apt_get ARGUMENT...: runs apt-get as root. Waits while another program holds one of its locks.
apt_get() {
    local errors status lock shown=""
    errors=$(mktemp)
    while true; do
        status=0
        as_root env LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive apt-get "$@" 2>"$errors" || status=$?
        lock=$(sed -n 's/^E: Could not get lock //p' "$errors")
        if [ "$status" -eq 0 ] || [ -z "$lock" ]; then
            cat "$errors" >&2
            rm "$errors"
            return "$status"
        fi
        [ "$lock" = "$shown" ] || echo "waiting for the lock $lock" >&2
        shown=$lock
        sleep 3
    done
}

# install_packages SECTION...: installs the missing packages of these sections of scripts/packages.txt.
# If no package is missing, it needs no network.
install_packages() {
    local missing
    if ! command -v dpkg-query >/dev/null; then
        echo "dpkg not found: install the packages of scripts/packages.txt with your system's tools" >&2
        return 0
    fi
    mapfile -t missing < <(missing_packages "$@")
    if [ "${#missing[@]}" -eq 0 ]; then
        return 0
    fi
    echo "installing with apt: ${missing[*]}"
    apt_get update
    apt_get install -y --no-install-recommends "${missing[@]}"
}
