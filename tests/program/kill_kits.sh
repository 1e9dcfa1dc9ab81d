#!/usr/bin/env bash
# Kills the program while it writes kits, two of one photo in turn, and looks at what stands in
# Results after the next start: each list must agree with its files, and all files must be of one
# kit, with nothing left waiting.
#   kill_kits.sh PROGRAM PHOTO KILLS     kills one run after the other
#   kill_kits.sh PROGRAM PHOTO --pairs N starts both kits at once, N times
#   kill_kits.sh PROGRAM PHOTO --window SAVER KILLS
#                                        kills the window, as it saves the kit that it has opened
set -euo pipefail

program=$1
photo=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
name=$(basename "${photo%%.*}")
keep=--save-kit
files=4

# make PAINTS [COMMAND]...: writes the kit of so many paints over whatever stands there, and keeps it
# under its own title where no kit has that.
make() {
    local paints=$1
    shift
    rm -f "$work"/Kits/*
    "$@" "$program" kit "$photo" --folder "$work" --final-paints "$paints" --quiet --replace-grid \
        $keep --outputs sheet,reference,painting,grid
}

# save PAINTS [MICROSECONDS]: makes the other kit of the one that stands there, in the window, and is
# killed so long after it begins to save. Prints how long that takes otherwise.
save() {
    QT_QPA_PLATFORM=offscreen HOME="$work" "$saver" "$work" "$@"
}

# settle: a start that writes no kit of this name. It fails, as there is no such photo.
settle() {
    "$program" kit "no such photo" --folder "$work" --outputs sheet --quiet >/dev/null 2>&1 || true
}

# fault: says what is wrong in Results.
fault() {
    local list="$work/Results/$name Easy Kit.json"
    [ "$(find "$work/Results" "$work/Saved Stipples" -name '.*' | wc -l)" = 0 ] || echo "leftovers"
    [ "$(grep -o '"mark":"[^"]*"' "$list" | sort -u | wc -l)" = 1 ] || echo "two marks"
    [ "$(grep -c '"sha256"' "$list")" = $files ] || echo "files missing from the list"
    (cd "$work/Results" && sed -n 's/.*"sha256":"\([^"]*\)","file":"\([^"]*\)".*/\1  \2/p' \
        "$list" | sha256sum --quiet -c >/dev/null 2>&1) || echo "sums differ"
    local kit
    for kit in "$work"/Kits/.* "$work"/Kits/*; do
        [ ! -f "$kit" ] || cmp -s "$kit" "$work/kit 16" || cmp -s "$kit" "$work/kit 50" || echo "half of $kit"
    done
}

faults=0
killed=0
count=$3
if [ "$3" = --window ]; then
    saver=$4 count=$5 files=5  # with the chart
    mkdir "$work/Pictures"
    cp "$photo" "$work/Pictures"
    save 16 >/dev/null
    for paints in 50 16 50; do
        took=$(save $paints)
        cp "$work/Kits/$name.kit" "$work/kit $paints"
    done
else
    make 16
    mv "$work/Kits/$name.kit" "$work/kit 16"
    start=$(date +%s%N)
    make 50
    took=$((($(date +%s%N) - start) / 1000))
    cp "$work/Kits/$name.kit" "$work/kit 50"
fi
if [ "$3" = --pairs ]; then count=$4 keep=; fi
for ((run = 1; run <= count; ++run)); do
    if [ "$3" = --pairs ]; then
        make 16 & first=$!
        make 50 & second=$!
        wait $first $second
    elif [ "$3" = --window ]; then
        status=0
        (save $((run % 2 ? 16 : 50)) $(((RANDOM * 32768 + RANDOM) % took + 1))) >/dev/null 2>&1 ||
            status=$?
        case $status in
        0) ;;
        142) killed=$((killed + 1)) ;;  # by its alarm
        *) 
            echo "run $run: the window ended with $status"
            faults=$((faults + 1))
            ;;
        esac
        settle
    else
        moment=$(printf '0.%06d' $(((RANDOM * 32768 + RANDOM) % took)))
        make $((run % 2 ? 16 : 50)) timeout --foreground -s KILL "$moment" || killed=$((killed + 1))
        settle
    fi
    wrong=$(fault)
    if [ -n "$wrong" ]; then
        echo "run $run: $wrong"
        faults=$((faults + 1))
    fi
done
echo "$count runs, $killed killed, $faults times Results was not whole"
[ $faults = 0 ]
