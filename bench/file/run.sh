#!/bin/sh
# Whole-run comparisons of the file operations against the standard tools, on the same data
# in the same run: FSRemove of a 40,000-entry tree against rm -rf, and FSCopy of a 500 MB
# file against cp followed by sync of the copy (FSCopy fsyncs its destination too).
# Usage: [ROUNDS=n] bench/file/run.sh BUILD_DIR [WORK_DIR]   (WORK_DIR: a folder in /tmp)
# Each figure is the median of ROUNDS runs (default 3).
set -eu

build=${1:?usage: run.sh BUILD_DIR [WORK_DIR]}
tool=$build/bench/file/fileop_bench_tool
work=${2:-$(mktemp -d /tmp/fileop-bench-XXXXXX)}
mkdir -p "$work"
trap 'rm -rf "$work"' EXIT
rounds=${ROUNDS:-3}

now() { date +%s.%N; }
# Seconds taken by the command given as arguments.
timed() { t0=$(now); "$@"; t1=$(now); awk "BEGIN { printf \"%.3f\\n\", $t1 - $t0 }"; }
median() { sort -n | sed -n "$(( (rounds + 1) / 2 ))p"; }
ratio() { awk "BEGIN { printf \"%.2f\", $1 / $2 }"; }

# 200 folders of 199 files: 40,000 entries with the folders.
echo "== FSRemove vs rm -rf, 40,000 entries, $rounds rounds"
: > "$work/rm.times"; : > "$work/fs.times"
for i in $(seq $rounds); do
    "$tool" tree "$work/a" 200 199
    "$tool" tree "$work/b" 200 199
    sync
    # Alternate which one goes first, so neither always meets the warmer cache.
    if [ $((i % 2)) -eq 1 ]; then
        timed rm -rf "$work/a" >> "$work/rm.times"
        timed "$tool" remove "$work/b" >> "$work/fs.times"
    else
        timed "$tool" remove "$work/b" >> "$work/fs.times"
        timed rm -rf "$work/a" >> "$work/rm.times"
    fi
done
rm_s=$(median < "$work/rm.times"); fs_s=$(median < "$work/fs.times")
echo "rm -rf: ${rm_s}s  FSRemove: ${fs_s}s  ratio FSRemove/rm: $(ratio "$fs_s" "$rm_s") (target <= 1.3)"

echo "== FSCopy vs cp + sync, 500 MB, $rounds rounds"
head -c 500000000 /dev/urandom > "$work/src"
sync
: > "$work/cp.times"; : > "$work/fc.times"
for i in $(seq $rounds); do
    rm -f "$work/dst-cp" "$work/dst-fs"; sync
    timed sh -c "cp '$work/src' '$work/dst-cp' && sync '$work/dst-cp'" >> "$work/cp.times"
    timed "$tool" copy "$work/src" "$work/dst-fs" >> "$work/fc.times"
    cmp -s "$work/src" "$work/dst-fs" || { echo "FSCopy produced a different file"; exit 1; }
done
cp_s=$(median < "$work/cp.times"); fc_s=$(median < "$work/fc.times")
echo "cp+sync: ${cp_s}s  FSCopy: ${fc_s}s  ratio FSCopy/cp: $(ratio "$fc_s" "$cp_s") (target <= 1.2)"
