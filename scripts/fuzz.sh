#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each one for a fixed budget on its
# corpus in fuzz/<unit>/corpus (new inputs found are added there). Prints executions
# and findings per target; exits non-zero when a target crashes or leaks.
#   scripts/fuzz.sh [--seconds N]     (default 60 per target)
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=60
while [ $# -gt 0 ]; do
  case "$1" in
    --seconds) seconds="$2"; shift 2 ;;
    *) echo "usage: $0 [--seconds N]" >&2; exit 2 ;;
  esac
done

scripts/install-deps.sh
build=build-fuzz
CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DSKELDA_FUZZ=ON -DSKELDA_SANITIZE=address -DSKELDA_TESTS=OFF -DSKELDA_BENCH=OFF >/dev/null
cmake --build "$build" -j"$(nproc)"

export QT_QPA_PLATFORM=offscreen
# Scratch folders in memory: the extractor flushes its volume after every package, which on a
# disk would spend the budget waiting for writeback instead of parsing.
export TMPDIR=/dev/shm
status=0
for unit_dir in fuzz/*/; do
  unit=$(basename "$unit_dir")
  for bin in "$build"/fuzz/"$unit"/*; do
    [ -f "$bin" ] && [ -x "$bin" ] || continue
    corpus="$unit_dir/corpus"
    mkdir -p "$corpus"
    artifacts=$(mktemp -d)
    log=$(mktemp)
    if "$bin" "$corpus" -max_total_time="$seconds" -artifact_prefix="$artifacts/" \
         -print_final_stats=1 >"$log" 2>&1; then
      result=ok
    else
      result=FAILED; status=1
      tail -n 40 "$log"
    fi
    execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
    found=$(find "$artifacts" -type f | wc -l)
    echo "fuzz $(basename "$bin"): ${seconds}s, ${execs:-?} executions, $found findings, $result"
    [ "$found" -gt 0 ] && cp "$artifacts"/* "$unit_dir" 2>/dev/null || true
    rm -rf "$artifacts" "$log"
  done
done
exit $status
