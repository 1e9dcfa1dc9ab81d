# Sourced by ./run and ./check: how far something has come, on standard error.

# show_progress TEXT: reads percents, one a line, and draws a bar; where nobody watches a terminal, a
# line for every fifth of the way.
show_progress() {
    local text=$1 percent shown=-1 bar=##############################
    while read -r percent; do
        if [ -t 2 ] && [ "$percent" -gt "$shown" ]; then
            printf '\r%s  [%-30s] %3d %%' "$text" "${bar:0:percent*30/100}" "$percent" >&2
        elif [ "$shown" -lt 0 ] || [ $((percent / 20)) -gt $((shown / 20)) ]; then
            [ -t 2 ] || echo "$text: $percent %" >&2
        fi
        [ "$percent" -le "$shown" ] || shown=$percent
    done
    [ ! -t 2 ] || [ "$shown" -lt 0 ] || echo >&2
}

# What ninja and apt-get tell, as percents: "[12/340] Building ...", "pmstatus:qt6:41.5:Unpacking".
percents_of_ninja() {
    local line
    while IFS= read -r line; do
        if [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]]; then
            echo $((BASH_REMATCH[1] * 100 / BASH_REMATCH[2]))
        fi
    done
}
percents_of_apt() {
    local line
    while IFS= read -r line; do
        if [[ $line =~ ^(dl|pm)status:[^:]*:([0-9]+) ]]; then
            [ "${BASH_REMATCH[1]}" = dl ] && echo $((BASH_REMATCH[2] / 2)) || echo $((50 + BASH_REMATCH[2] / 2))
        fi
    done
}
