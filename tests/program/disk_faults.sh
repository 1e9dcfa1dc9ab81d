#!/usr/bin/env bash
# Lets the disk fail: every call of a kind that "vendrel kit" makes fails once, in a run of its own,
# with every error that such a disk may answer. After each, Results holds the old kit or the new one
# whole, the program names a file and what to do, and after the next start nothing waits anywhere.
#   disk_faults.sh PROGRAM PHOTO [STEP]     only every STEPth call
set -uo pipefail
program=$1 photo=$2 step=${3:-1}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
name=$(basename "${photo%%.*}")
runs=0 refused=0 faults=0

# make FOLDER PAINTS [COMMAND]...
make() {
    local folder=$1 paints=$2
    shift 2
    "$@" "$program" kit "$photo" --folder "$folder" --final-paints "$paints" --screen 480x400 --quiet \
        --replace-grid --save-kit --title "$name" --outputs sheet,painting,grid
}
# What a kit's files are, whole: their sums.
sums() {
    (cd "$1" && find Results "Saved Stipples" -type f -exec sha256sum {} + 2>/dev/null | sort)
}
fault() {
    echo "$call $at $error, $start: $*"
    faults=$((faults + 1))
}

# An old kit to be replaced by a new one, whose kit file has another title, or nothing yet.
mkdir "$work/none"
make "$work/old" 16 >/dev/null 2>&1 || exit 1
rm -r "$work/old/Kits"
for start in none old; do
    cp -r "$work/$start" "$work/new $start"
    make "$work/new $start" 50 || exit 1
    sums "$work/new $start" >"$work/sums.new $start"
    sums "$work/$start" >"$work/sums.old $start"
done

# try: one run with one fault; fails once there are no more calls to fail.
try() {
    local folder=$work/run status
    rm -rf "$folder"
    cp -r "$work/$start" "$folder"
    make "$folder" 50 strace -f -qq -o "$work/trace" -e trace="$call" \
        -e inject="$call:error=$error:when=$at" >"$work/said" 2>&1
    status=$?
    grep -q INJECTED "$work/trace" || return 1
    runs=$((runs + 1))
    [ $status -le 1 ] || fault "ended with $status: $(cat "$work/said")"
    if [ $status -ne 0 ]; then
        refused=$((refused + 1))
        grep -q '^vendrel: /.*: .*\. .*\.$' "$work/said" || fault "no sentence: $(cat "$work/said")"
        case $error in
        ENOSPC) grep -q 'room' "$work/said" ;;
        EDQUOT) grep -q 'allowed' "$work/said" ;;
        EROFS) grep -q 'cannot be written to' "$work/said" ;;
        ENAMETOOLONG) grep -q 'shorter' "$work/said" ;;
        esac || fault "no advice: $(cat "$work/said")"
    fi
    "$program" kit "no such photo" --folder "$folder" --quiet --outputs painting >/dev/null 2>&1
    sums "$folder" >"$work/sums"
    cmp -s "$work/sums" "$work/sums.new $start" || { [ $status -ne 0 ] && cmp -s "$work/sums" "$work/sums.old $start"; } ||
        fault "status $status, and neither the old kit nor the new one"
    [ -z "$(find "$folder" -name '.*')" ] || fault "left $(find "$folder" -name '.*')"
    for kit in "$folder"/Kits/*.kit; do
        [ ! -e "$kit" ] || cmp -s "$kit" "$work/new $start/Kits/${kit##*/}" || fault "half a kit file"
    done
}

# The loader of programs opens libraries first, which no disk of a painter holds.
cp -r "$work/none" "$work/run"
make "$work/run" 50 strace -f -qq -o "$work/trace" -e trace=openat >/dev/null 2>&1
loaded=$(grep -n -m 1 -F "$work/run" "$work/trace" | cut -d: -f1)
[ -n "$loaded" ] || exit 1

for start in none old; do
    for call in openat:EMFILE openat:EIO write:ENOSPC write:EDQUOT write:EIO fsync:EIO fsync:ENOSPC \
        linkat:ENOSPC linkat:EDQUOT rename:ENOSPC rename:EROFS mkdir:EROFS mkdir:ENAMETOOLONG; do
        error=${call#*:} call=${call%:*}
        [ $call = openat ] && at=$loaded || at=1
        for (( ; ; at += step)); do
            try || break
        done
    done
done
echo "Disk faults: $runs injected, $refused refused with a sentence, $faults faults"
[ $faults = 0 ]
