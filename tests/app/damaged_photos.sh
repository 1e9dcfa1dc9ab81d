#!/usr/bin/env bash
# Damaged photos of every format end in a picture or a sentence, and take no other photo along.
#   damaged_photos.sh PROGRAM MAKER COUNT
# PROGRAM is the built vendrel, MAKER writes the photos; COUNT is how many of each format.
set -uo pipefail
program=$1 maker=$2 count=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

# kit PHOTO...: one line of JSON for each photo in "$work/said"; gives the exit status.
kit() {
    "$program" kit "$@" --folder "$work/folder" --screen 240x200 --outputs painting --json \
        >"$work/said" 2>"$work/errors"
}

for format in jpeg png gif tiff webp bmp heic avif; do
    rm -rf "${work:?}/photos" "$work/folder"
    mkdir "$work/photos"
    "$maker" "$work/photos" "$format" "$count" || exit 1
    pictures=0 sentences=0 died=0 silent=0 noisy=0
    mapfile -t photos < <(ls -v "$work/photos"/*)
    for ((first = 0; first < ${#photos[@]}; first += 50)); do
        batch=("${photos[@]:first:50}")
        kit "${batch[@]}"
        if [ $? -gt 1 ] || [ "$(wc -l <"$work/said")" -ne "${#batch[@]}" ]; then
            : >"$work/batch"
            for photo in "${batch[@]}"; do
                kit "$photo"
                [ $? -le 1 ] || died=$((died + 1))
                cat "$work/said" >>"$work/batch"
            done
            mv "$work/batch" "$work/said"
        fi
        made=$(grep -c '"name": ' "$work/said")
        refused=$(grep -c '"error": "[^"]*: .*[a-z)]\. .*\."' "$work/said")
        pictures=$((pictures + made))
        sentences=$((sentences + refused))
        silent=$((silent + ${#batch[@]} - made - refused))
        noisy=$((noisy + $(grep -c -i '^\(qt\|libpng\|tiff\|foo\)' "$work/errors")))
    done
    echo "$format: $pictures pictures, $sentences sentences, $died ended the program," \
        "$silent without a word, $noisy remarks of a decoder"
    [ $((died + silent + noisy)) -eq 0 ] || failed=1
done
exit $failed
