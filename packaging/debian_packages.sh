# Sourced by ./run and ./check.
source "${BASH_SOURCE[0]%/*}/progress.sh"

# What the program is built from and runs with: its core, and what fonts, photo decoders and windows
# need.
core_packages=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev nettle-dev zlib1g-dev)
window_packages=(qt6-base-dev qt6-image-formats-plugins libheif-dev libqrencode-dev libqpdf-dev fonts-liberation)
build_packages=("${core_packages[@]}" "${window_packages[@]}")

# install_missing PACKAGE...
# Installs those of the Debian packages that are not there yet, through sudo unless root, and shows
# how far that is; says what to do where it may not.

install_missing() {
    command -v dpkg-query >/dev/null || return 0
    local installed missing=() package
    installed=$(dpkg-query --show --showformat '${Package} ${db:Status-Abbrev}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        grep -q "^$package .i" <<<"$installed" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Some packages are missing. Have an administrator run this, then try again:" >&2
            echo "    apt-get install --no-install-recommends ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]} ..." >&2
    local log
    log=$(mktemp)
    # sudo hands on no streams but the first three: what apt-get prints goes to the third.
    if ! "${as_root[@]}" apt-get -q update >"$log" 2>&1 </dev/null ||
        ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            sh -c 'exec apt-get "$@" 3>&1 >&2' apt-get -q install -y \
            --no-install-recommends -o DPkg::Lock::Timeout=120 -o APT::Status-Fd=3 \
            -o Dpkg::Use-Pty=0 "${missing[@]}" 2>>"$log" </dev/null |
        percents_of_apt | show_progress "Installing"; then
        tail -n 20 "$log" >&2
        rm -f "$log"
        echo "The packages above could not be installed. Check the network and try again." >&2
        return 1
    fi
    rm -f "$log"
}
