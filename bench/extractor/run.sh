#!/bin/sh
# Extraction benchmark: Extractor::Extract against bsdtar on the same package, same run.
#
#   bench/extractor/run.sh [build-folder]
#
# For every size and format it writes a synthetic package, then times
#   ours:      extract_once (Extract: one counting pass, one extracting pass)
#   reference: bsdtar -tf  +  bsdtar -xf into a fresh folder
# and prints the ratios (target: at most 1.10) of wall time, CPU time (user + system) and
# user time, and both peak memories. The system time is mostly the kernel creating files,
# the same work on both sides but very noisy on a busy machine; the user time is the part
# the two programs decide. At the end it compares our peak memory of the largest package
# with that of the smallest (target: within 10 %: memory must not grow with the package).
#
# Environment: SIZES    entries:megabytes pairs   (default "3000:150 40000:600")
#              FORMATS  any of tar tgz zip        (default "tar tgz zip")
#              REPEAT   rounds per package, best kept (default 2)
#              WORK     scratch folder            (default a fresh one under /tmp, removed)
set -eu

here=$(cd "$(dirname "$0")" && pwd)
build=${1:-$here/../../build-extractor}
make_package=$build/bench/extractor/extractor_make_package
extract_once=$build/bench/extractor/extractor_extract_once
for tool in "$make_package" "$extract_once"; do
    [ -x "$tool" ] || { echo "missing $tool: build target bench/extractor first" >&2; exit 2; }
done
command -v bsdtar >/dev/null || { echo "bsdtar not found" >&2; exit 2; }

SIZES=${SIZES:-"3000:150 40000:600"}
FORMATS=${FORMATS:-"tar tgz zip"}
REPEAT=${REPEAT:-2}
if [ -z "${WORK:-}" ]; then
    WORK=$(mktemp -d /tmp/skelda-bench-XXXXXX)
    trap 'rm -rf "$WORK"' EXIT
fi

# timed <file> <command...>: runs the command under /usr/bin/time, which writes
# "wall-seconds cpu-seconds user-seconds peak-KiB" into file.
timed() {
    out=$1; shift
    /usr/bin/time -f "%e %U %S %M" -o "$out" "$@" >/dev/null
    awk '{ printf "%s %.2f %s %s\n", $1, $2 + $3, $2, $4 }' "$out" > "$out.sum"
    mv "$out.sum" "$out"
}

# An empty destination, with earlier writes flushed so they do not slow the next run.
fresh() { rm -rf "$WORK/dest"; mkdir "$WORK/dest"; sync; }

min() { awk -v a="$1" -v b="$2" 'BEGIN { print (a == "" || b + 0 < a + 0) ? b : a }'; }
max() { awk -v a="$1" -v b="$2" 'BEGIN { print (b + 0 > a + 0) ? b : a }'; }

# measure <package>: REPEAT rounds, ours and the reference alternating so that load from
# elsewhere hits both alike. Keeps the best wall, CPU and user time and the largest peak.
measure() {
    o_wall=""; o_cpu=""; o_user=""; o_peak=0; r_wall=""; r_cpu=""; r_user=""; r_peak=0
    i=0
    while [ $i -lt "$REPEAT" ]; do
        fresh
        timed "$WORK/t" "$extract_once" "$1" "$WORK/dest"
        read -r w c u m < "$WORK/t"
        o_wall=$(min "$o_wall" "$w"); o_cpu=$(min "$o_cpu" "$c"); o_user=$(min "$o_user" "$u")
        o_peak=$(max "$o_peak" "$m")

        fresh
        timed "$WORK/t1" bsdtar -tf "$1"
        timed "$WORK/t2" bsdtar -xf "$1" -C "$WORK/dest"
        read -r w1 c1 u1 m1 < "$WORK/t1"
        read -r w2 c2 u2 m2 < "$WORK/t2"
        r_wall=$(min "$r_wall" "$(awk -v a="$w1" -v b="$w2" 'BEGIN { print a + b }')")
        r_cpu=$(min "$r_cpu" "$(awk -v a="$c1" -v b="$c2" 'BEGIN { print a + b }')")
        r_user=$(min "$r_user" "$(awk -v a="$u1" -v b="$u2" 'BEGIN { print a + b }')")
        r_peak=$(max "$r_peak" "$(max "$m1" "$m2")")
        i=$((i + 1))
    done
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f", (b > 0) ? a / b : 0 }'; }

row='%-12s %-3s %6s %6s %5s  %6s %6s %5s  %5s %5s %5s  %7s %7s\n'
printf "$row" package fmt wall_s ref_s ratio cpu_s ref_s ratio usr_s ref_s ratio our_KiB ref_KiB
for size in $SIZES; do
    entries=${size%%:*}; mb=${size##*:}
    for fmt in $FORMATS; do
        pkg=$WORK/pkg.$fmt
        "$make_package" "$pkg" "$fmt" "$entries" "$mb"
        bsdtar -tf "$pkg" >/dev/null  # warm the page cache for both sides alike
        measure "$pkg"
        printf "$row" "$entries/${mb}MB" "$fmt" \
            "$o_wall" "$r_wall" "$(ratio "$o_wall" "$r_wall")" \
            "$o_cpu" "$r_cpu" "$(ratio "$o_cpu" "$r_cpu")" \
            "$o_user" "$r_user" "$(ratio "$o_user" "$r_user")" "$o_peak" "$r_peak"
        echo "$fmt $size $o_peak" >> "$WORK/peaks"
        rm -f "$pkg"
    done
done
rm -rf "$WORK/dest"

# Peak memory of the largest package against the smallest, per format.
first=${SIZES%% *}; last=${SIZES##* }
for fmt in $FORMATS; do
    small=$(awk -v f="$fmt" -v s="$first" '$1 == f && $2 == s { print $3 }' "$WORK/peaks")
    large=$(awk -v f="$fmt" -v s="$last" '$1 == f && $2 == s { print $3 }' "$WORK/peaks")
    awk -v f="$fmt" -v a="$small" -v b="$large" -v s="$first" -v l="$last" 'BEGIN {
        printf "peak memory %s: %s KiB (%s) -> %s KiB (%s), ratio %.3f\n", f, a, s, b, l, b / a }'
done
