# shellcheck shell=bash
# Sourced by the other scripts, before they do anything. Given --help, it prints the script's opening
# comment and ends. Otherwise it defines install_packages, which installs the Debian packages that
# scripts/packages.txt lists; when all of them are there, it does nothing and needs no network.

# Prints the opening comment of the script that runs.
print_help() {
    local folder name
    folder="$(dirname "${BASH_SOURCE[0]}")"
    name="$(basename "$0")"
    if [ ! -f "$folder/$name" ]; then
        folder="$folder/../.ci"
    fi
    sed -n '1d; /^#/!q; s/^# \{0,1\}//p' "$folder/$name"
}

case " $* " in
*" --help "*)
    print_help
    exit
    ;;
esac

# Prints the packages of the list's sections that are given and not installed, one a line.
missing_packages() {
    local list package section=""
    list="$(dirname "${BASH_SOURCE[0]}")/packages.txt"
    while read -r package; do
        if [[ "$package" =~ ^#\ ([a-z]+): ]]; then
            section="${BASH_REMATCH[1]}"
        fi
        case "$package" in
        '' | '#'*) continue ;;
        esac
        case " $* " in
        *" $section "*) ;;
        *) continue ;;
        esac
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            printf '%s\n' "$package"
        fi
    done <"$list"
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

# apt_get ARGUMENT...: runs apt-get as root, once no other program holds one of its locks.
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

# Installs what is missing of the sections given, such as: install_packages build run
install_packages() {
    local missing
    if ! command -v dpkg-query >/dev/null; then
        echo "no dpkg here: install what scripts/packages.txt lists by your system's own means" >&2
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
