#!/usr/bin/env bash
# Orders made, changed, touched up and made again: what a shop does with them over a year.
#   batch_test.sh PROGRAM PHOTO OUTPUTS
set -euo pipefail

program=$1
photo=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
shop=$work/shop
list=$work/orders.csv
outputs=$3

fail() {
    echo "$*" >&2
    exit 1
}
# batch STATUS WORD...: what the batch says, when it ends as it should.
batch() {
    local wanted=$1 status=0
    shift
    "$program" batch "$list" --folder "$shop" --outputs "$outputs" --jobs 2 "$@" \
        >"$work/out" 2>"$work/err" || status=$?
    [ "$status" = "$wanted" ] || fail "ended with $status: $* $(cat "$work/err")"
    cat "$work/out" "$work/err"
}
says() {
    local text
    text=$(cat)
    [[ $text == *"$1"* ]] || fail "\"$1\" was not said but: $text"
}
sums() {
    (cd "$shop/Orders" && find . -type f -path './*/*' | sort | xargs -d '\n' sha256sum)
}

head -c 3000 "$photo" >"$work/cut short.bmp"
{
    echo "order,photo,final paints"
    echo "1,$photo,16"
    echo "2,$photo,32"
    echo "3,cut short.bmp,16"
    echo "4,$photo,50"
} >"$list"

# One broken photo harms no other order.
batch 1 | says "3 made, 0 there already, 1 failed"
grep -c "cut short.bmp" "$work/err" | grep -qx 1 || fail "not one sentence: $(cat "$work/err")"
batch 1 | says "0 made, 3 there already, 1 failed"

# Only what has changed is made anew, and what was touched up is nobody's to write over.
sums >"$work/before"
sed -i 's/^2,\(.*\),32/2,\1,40/; /^3,/d' "$list"
batch 0 --dry-run | says "2: has changed, to be made anew"
batch 0 | says "1 made, 2 there already, 0 failed"
[ "$(sums | diff - "$work/before" | grep -c '^>.* \./2/')" -ge 3 ] || fail "2 is as it was"
[ -z "$(sums | diff - "$work/before" | grep -v ' \./2/' | grep '^[<>]')" ] || fail "others changed"
kit=$(echo "$shop"/Orders/4/Kits/*.kit)
echo >>"$kit"
sed -i 's/^4,\(.*\),50/4,\1,40/' "$list"
batch 1 | says "was touched up since it was made"
batch 1 --verify | says "is not what was written"
rm -r "$shop/Orders/4"
batch 0 | says "1 made"

# The same again under another locale, in another time zone, on one core, by another user.
sums >"$work/before"
around=(env TZ=Pacific/Kiritimati taskset -c 0)
if localedef -i de_DE -f UTF-8 "$work/de_DE.UTF-8" 2>/dev/null; then
    around+=(env LOCPATH="$work" LC_ALL=de_DE.UTF-8)
fi
other=(setpriv --reuid=nobody --clear-groups)
if [ "$(id -u)" = 0 ] && "${other[@]}" test -x "$program"; then
    chown -R nobody "$work"
    around+=(env HOME="$work" "${other[@]}")
fi
"${around[@]}" "$program" batch "$list" --folder "$shop" --outputs "$outputs" --remake-check |
    says "every kit comes out the same"
sums | cmp - "$work/before"
