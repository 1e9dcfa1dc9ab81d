# Sourced by ./run and ./check.

# What the program is built from and runs with.
build_packages=(
    g++ cmake ninja-build libcli11-dev nlohmann-json3-dev nettle-dev zlib1g-dev
    qt6-base-dev qt6-image-formats-plugins libheif-dev fonts-liberation
)

# install_missing PACKAGE...
# Installs those of the Debian packages that are not there yet, through sudo unless root. Says in
# one line what it installs and nothing else, unless that fails.

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
            echo "These packages are missing; install them as root: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]} ..." >&2
    local log
    log=$(mktemp)
    if ! "${as_root[@]}" apt-get -q update >"$log" 2>&1 </dev/null ||
        ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q install -y \
            --no-install-recommends -o DPkg::Lock::Timeout=120 "${missing[@]}" \
            >>"$log" 2>&1 </dev/null; then
        tail -n 20 "$log" >&2
        rm -f "$log"
        echo "The packages above could not be installed. Check the network and try again." >&2
        return 1
    fi
    rm -f "$log"
}
