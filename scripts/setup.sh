# shellcheck shell=bash
# Sourced by the other scripts: installs the Debian packages that scripts/packages.txt lists.
# Defines install_packages, which does nothing and needs no network when all of them are there.

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
    as_root apt-get update
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
}
