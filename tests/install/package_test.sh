#!/usr/bin/env bash
# What can be told of a package without installing it: lintian's and the desktops' rules, that its
# programs are guarded, and that nothing in it tells where it was built.
#   package_test.sh DEB FOLDER
set -uo pipefail
deb=$1 built_in=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
faults=0
fault() {
    echo "  $*"
    faults=$((faults + 1))
}

lintian --allow-root --fail-on error "$deb" >"$work/lintian" 2>&1 || fault "lintian: $(cat "$work/lintian")"
dpkg-deb -x "$deb" "$work/root"
appstreamcli validate --no-net "$work"/root/usr/share/metainfo/*.xml >"$work/said" 2>&1 || fault "$(cat "$work/said")"
desktop-file-validate "$work"/root/usr/share/applications/*.desktop || fault "the desktop entry"
for action in $(sed -n 's/^Exec=.* \(\/[^ ]*\)$/\1/p' "$work"/root/usr/share/applications/*.desktop); do
    [ -e "$work/root$action" ] || fault "the desktop entry opens $action, which the package lacks"
done
for command in vendrel vendrel-kit vendrel-batch vendrel-paints vendrel-shop vendrel-symbols; do
    page=$work/root/usr/share/man/man1/$command.1.gz
    man --warnings -E UTF-8 -l "$page" 2>&1 >/dev/null | grep . && fault "the page of $command"
    [ -s "$page" ] || fault "no page for $command"
done

guarded=0
for program in "$work"/root/usr/bin/vendrel "$work"/root/usr/libexec/vendrel/vendrel-studio; do
    name=${program##*/}
    head=$(readelf -Whld --dyn-syms "$program")
    for sign in 'Type: *DYN (Pos' GNU_RELRO 'FLAGS.*BIND_NOW' 'Flags:.*PIE' __stack_chk_fail \
        '__[a-z]*_chk@' '__glibcxx_assert_fail'; do
        grep -q -e "$sign" <<<"$head" || fault "$name has no $sign"
    done
    readelf -WS "$program" | grep -q '\.symtab' && fault "$name is not stripped"
    grep -qF "$built_in" "$program" && fault "$name tells that it was built in $built_in"
    guarded=$((guarded + 1))
done
echo "Package: $(grep -c '^W:' "$work/lintian") warnings of lintian, $guarded programs guarded, $faults faults"
[ $faults = 0 ]
