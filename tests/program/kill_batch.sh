#!/usr/bin/env bash
# Kills a batch at random moments, each time going on with what is there, until all is made: every
# file must come out as in a batch that nobody killed, and the manifest must agree with the files.
#   kill_batch.sh PROGRAM PHOTO KILLS
set -euo pipefail

program=$1
photo=$2
kills=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
orders=$work/orders.csv
{
    echo "order,photo,final paints,difficulty"
    for ((order = 1; order <= 6; ++order)); do
        echo "$order,$photo,$((order % 2 ? 16 : 50)),$((order % 3)) "
    done | sed 's/,0 $/,easy/; s/,[12] $/,medium/'
} >"$orders"

run() {
    "$@" "$program" batch "$orders" --folder "$folder" --outputs sheet,painting,grid --quiet --jobs 2
}

# sums: of all that an order's folder holds, with nothing hidden left.
sums() {
    (cd "$1/Orders" && find . -type f -path './*/*' | sort | xargs -d '\n' sha256sum)
}

folder=$work/whole
start=$(date +%s%N)
run
took=$((($(date +%s%N) - start) / 1000))
sums "$folder" >"$work/whole.sums"
faults=0
killed=0
for ((kill = 1; kill <= kills; ++kill)); do
    if [ ! -e "$work/cut" ]; then folder=$work/cut; fi
    moment=$(printf '0.%06d' $(((RANDOM * 32768 + RANDOM) % (took < 1000000 ? took : 1000000))))
    if run timeout --foreground -s KILL "$moment"; then
        rm -rf "$work/cut" # all was made: from the beginning again
    else
        killed=$((killed + 1))
    fi 2>/dev/null
    if ((kill % 10 == 0)); then
        run
        sums "$work/cut" >"$work/cut.sums"
        "$program" batch "$orders" --folder "$work/cut" --outputs sheet,painting,grid --quiet --verify ||
            faults=$((faults + 1))
        cmp "$work/whole.sums" "$work/cut.sums" || faults=$((faults + 1))
        rm -rf "$work/cut"
    fi
done
echo "$kills runs of a batch, $killed killed, $faults times it did not come out the same"
[ $faults = 0 ]
