#!/usr/bin/env bash
# Installs a package in a fresh system with nothing else in it, makes a kit there and opens the
# window as an ordinary user, and looks for what stays when the package goes. Needs root.
#   fresh_root_test.sh DEB
set -euo pipefail
deb=$1
work=$(mktemp -d)
root=$work/root
server=
leave() {
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    umount "$root/tmp/.X11-unix" "$root/proc" 2>/dev/null || true
    mountpoint -q "$root/proc" || rm -rf "$work"
}
trap leave EXIT

quietly() {
    if ! "$@" >"$work/log" 2>&1; then
        tail -n 20 "$work/log" >&2
        echo "Failed: $*" >&2
        exit 1
    fi
}
as_painter() {
    chroot --userspec=1000:1000 "$root" env -i HOME=/home/painter PATH=/usr/bin:/bin LANG=C.UTF-8 \
        XDG_RUNTIME_DIR=/home/painter/run "$@"
}
# All that is there but what belongs to the packages' own books.
standing() {
    find "$root" -xdev \( -path "$root/proc" -o -path "$root/tmp" -o -path "$root/home" \
        -o -path "$root/var/lib/dpkg" -o -path "$root/var/lib/apt" -o -path "$root/var/cache" \
        -o -path "$root/var/log" \) -prune -o -print | sort
}

quietly mmdebstrap --variant=minbase "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$root"
# The mirror and the way to it are this computer's.
cp -r /etc/apt/apt.conf.d /etc/apt/sources.list.d "$root/etc/apt/"
[ ! -e /etc/apt/sources.list ] || cp /etc/apt/sources.list "$root/etc/apt/"
[ ! -e "$root/etc/apt/sources.list.d/debian.sources" ] || rm -f "$root/etc/apt/sources.list"
cp /etc/resolv.conf "$root/etc/"
mount -t proc proc "$root/proc"
in_root=(chroot "$root" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends)
quietly "${in_root[@]}" update
cp "$deb" "$root/tmp/vendrel.deb"
quietly "${in_root[@]}" install /tmp/vendrel.deb
quietly chroot "$root" useradd --create-home --uid 1000 painter
mkdir -m 700 "$root/home/painter/run"
chown 1000:1000 "$root/home/painter/run"

quietly as_painter vendrel kit PBNLady.bmp --folder /home/painter/kits --quiet --paintable \
    --outputs sheet,painting,chart,grid,pdf,svg,page,list --save-kit
made=$(find "$root/home/painter/kits/Results" -type f -size +0 | wc -l)
[ "$made" -eq 8 ] || { echo "The kit has $made files in Results"; exit 1; }
head -c 5 "$root"/home/painter/kits/Results/*.pdf | grep -q '%PDF-'
quietly as_painter vendrel kit PBNLady.kit --folder /home/painter/kits --quiet --outputs painting

mkdir -p "$root/tmp/.X11-unix" /tmp/.X11-unix
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$work/display" >"$work/xvfb" 2>&1 &
server=$!
read -r number <"$work/display"
export DISPLAY=:$number
as_painter DISPLAY="$DISPLAY" QT_QPA_PLATFORM=xcb vendrel --documents >"$work/window" 2>&1 &
window=$!
quietly timeout 60 xdotool search --sync --onlyvisible --name Vendrel
kill -0 $window || { cat "$work/window"; echo "The window is gone again"; exit 1; }
kill $window
wait $window || true

standing >"$work/with"
chroot "$root" dpkg -L vendrel | sort >"$work/owned"
quietly "${in_root[@]}" purge vendrel
standing >"$work/without"
left=$(comm -12 <(sed "s|^$root||" "$work/without") <(grep vendrel "$work/owned") | wc -l)
gone=$(comm -23 "$work/with" "$work/without" | wc -l)
[ "$left" = 0 ] && ! grep -i vendrel <(sed "s|^$root||" "$work/without") || { echo "Files stay"; exit 1; }
echo "Fresh system: $made files of a kit, a window, $gone files gone with the package, none left"
