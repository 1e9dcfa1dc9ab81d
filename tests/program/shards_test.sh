#!/usr/bin/env bash
# A batch in shards, by GNU parallel and as a Slurm job array, must come out as one made here.
#   shards_test.sh PROGRAM PHOTO
set -euo pipefail

program=$1
photo=$2
tools=$(dirname "$(readlink -f "$0")")/../../tools/cluster
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
{
    echo "order,photo,final paints"
    for order in 1 2 3 4 5; do echo "$order,$photo,$((order % 2 ? 16 : 32))"; done
} >"$work/orders.csv"

words=("$work/orders.csv" --outputs "painting,grid" --quiet)
sums() {
    (cd "$1/Orders" && find . -type f -path './*/*' | sort | xargs -d '\n' sha256sum)
}
# agrees NAME: the orders made in that way are those of the batch made here.
agrees() {
    cmp <(sums "$work/here") <(sums "$work/$1")
    [ "$(wc -l <"$work/$1/Orders/batch.jsonl")" = 5 ]
    "$program" batch "${words[@]}" --folder "$work/$1" --verify
    echo "$1: the same"
}

"$program" batch "${words[@]}" --folder "$work/here"
if command -v parallel >/dev/null; then
    "$tools/batch_parallel" 2 2/: "$program" "${words[@]}" --folder "$work/parallel"
    agrees parallel
else
    echo "parallel is missing; skipped"
fi
status=0
"$tools/slurm_here" "$tools/batch_array" 2 "$program" "${words[@]}" --folder "$work/slurm" || status=$?
if [ $status = 0 ]; then
    agrees slurm
elif [ $status != 77 ]; then
    exit $status
fi
