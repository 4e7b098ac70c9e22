#!/usr/bin/env bash
# Whole-process benchmarks of the launcher, each against a reference run in the same
# session, printed as ratios:
#   1. a launcher run with no upgrade needed, to the client started and the process ended,
#      against bench/launcher/bare_qt.cpp (QApplication + QProgressDialog, then quit):
#      median wall time and peak resident memory (targets: 1.3x and 1.2x);
#   2. a first installation of a package of 3,000 entries against `bsdtar -tf` plus
#      `bsdtar -xf` of it (target 1.1x); a full upgrade (stop nothing, back up the old
#      application, extract the package, remove the backup) against `bsdtar -xf` of the same
#      package, and against the same steps done with the tools (list, move aside, extract,
#      remove).
#   bench/launcher/run.sh [BUILD_DIR[,BUILD_DIR...]] [RUNS]      (defaults: build, 25)
# With several build folders (build,build-qt6: Qt 5 and Qt 6), case 1 runs the launchers and
# bare programs of all of them interleaved; case 2 uses the first folder.
set -euo pipefail
cd "$(dirname "$0")/../.."
root=$(pwd)
IFS=, read -r -a builds <<<"${1:-build}"
runs="${2:-25}"
for build in "${builds[@]}"; do
  cmake --build "$build" --target skelda-launcher launcher_bench_bare_qt >/dev/null
done
launcher="$root/${builds[0]}/ui-client/launcher/skelda-launcher"

export QT_QPA_PLATFORM=offscreen
# In memory: on ext4 the time to create 3,000 files swung by 5x with how recently as many had
# been deleted (its inode allocator skips recently freed inodes), whoever created them.
# BENCH_DIR=/some/disk/folder measures on a disk instead.
work=$(mktemp -d -p "${BENCH_DIR:-/dev/shm}")
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
export HOME="$work/home"
mkdir -p "$HOME"
trap 'rm -rf "$work"' EXIT

# A client that records its pid like the real one and ends at once, so runs leave nothing.
client="$work/client"
printf '#!/bin/sh\nprintf "pid=%%s\\n" "$$" > "$HOME/.SkeldaBackup/ui.pid"\n' >"$client"
chmod +x "$client"

# measure CMD...: one run; prints "<wall µs> <peak RSS KiB>"
measure() {
  local start end
  start=$(date +%s%N)
  /usr/bin/time -f %M -o "$work/rss" "$@" >/dev/null 2>&1
  end=$(date +%s%N)
  echo "$(( (end - start) / 1000 )) $(cat "$work/rss")"
}
# median FILE COLUMN: the median of one column of measure's output lines
median() { cut -d' ' -f"$2" "$1" | sort -n | sed -n "$(( ($(wc -l <"$1") + 1) / 2 ))p"; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }
ms() { awk -v us="$1" 'BEGIN { printf "%.1f", us / 1000 }'; }

echo "machine: $(nproc) cores, $(sed -n 's/^model name\t*: //p' /proc/cpuinfo | head -n 1)"

# 1. No upgrade needed: install once, then time the runs that find the build current.
for i in "${!builds[@]}"; do
  tools/make-bundle.sh --launcher "$root/${builds[$i]}/ui-client/launcher/skelda-launcher" \
    --client "$client" --version 1.0.100 --out "$work/Current$i.app" >/dev/null
  "$work/Current$i.app/Contents/MacOS/skelda-launcher" >/dev/null 2>&1
done
# Interleaved, so that a change in the machine's load hits every side alike.
for _ in $(seq 1 "$runs"); do
  for i in "${!builds[@]}"; do
    measure "$work/Current$i.app/Contents/MacOS/skelda-launcher" >>"$work/launcher$i"
    measure "$root/${builds[$i]}/bench/launcher/launcher_bench_bare_qt" >>"$work/bare$i"
  done
done
for i in "${!builds[@]}"; do
  l_us=$(median "$work/launcher$i" 1) l_kb=$(median "$work/launcher$i" 2)
  q_us=$(median "$work/bare$i" 1) q_kb=$(median "$work/bare$i" 2)
  echo "no upgrade, ${builds[$i]}:  launcher $(ms "$l_us") ms, ${l_kb} KiB |" \
       "bare Qt $(ms "$q_us") ms, ${q_kb} KiB | time $(ratio "$l_us" "$q_us")x (target 1.3x)," \
       "memory $(ratio "$l_kb" "$q_kb")x (target 1.2x)"
done

# 2. Full upgrade of 3,000 entries: 30 folders of 99 files of 1 KiB, plus the bundle's own
# folders and version file (the tool prints the count).
big="$work/big"
mkdir -p "$big/Contents/MacOS" "$big/Contents/Resources"
cp "$client" "$big/Contents/MacOS/skelda-backup-ui"
head -c 1024 /dev/urandom >"$work/kib"
for d in $(seq -w 1 30); do
  mkdir -p "$big/Contents/Resources/d$d"
  for f in $(seq -w 1 99); do cp "$work/kib" "$big/Contents/Resources/d$d/f$f"; done
done
rm "$big"/Contents/Resources/d30/f9[5-9]
tools/make-bundle.sh --launcher "$launcher" --client "$big" --version 1.0.200 \
  --out "$work/Big.app"
package="$work/Big.app/Contents/Resources/package/skelda.vpk"
echo "package entries: $(bsdtar -tf "$package" | wc -l)"
# The disk decides these times (ext4 slows file creation right after mass deletion, by up to
# 2x from one round to the next), so each case is interleaved with its references, round by
# round, and the medians compare.
rounds=9
info="$HOME/.SkeldaBackup/Skelda.app/Contents/Resources/INFO"
mkdir -p "$work/y"
for _ in $(seq 1 "$rounds"); do
  # A first installation into an empty per-user installation, against listing plus
  # extracting with the tools (the launcher also reads the package twice: count, extract).
  rm -rf "$HOME/.SkeldaBackup"
  measure "$work/Big.app/Contents/MacOS/skelda-launcher" >>"$work/firsts"
  rm -rf "$work/x" && mkdir "$work/x"
  measure sh -c 'bsdtar -tf "$1" >/dev/null && bsdtar -xf "$1" -C "$2"' sh "$package" "$work/x" \
    >>"$work/lists"
  # An upgrade of that installation, against bsdtar -xf alone, and against the same steps
  # done with the tools: count the entries, move the old tree aside, extract, remove it.
  printf '[Version]\nbuild_version=199\n' >"$info"  # older again: the next run upgrades
  measure "$work/Big.app/Contents/MacOS/skelda-launcher" >>"$work/upgrades"
  [ "$(sed -n 's/^build_version=//p' "$info")" = 200 ] || { echo "upgrade failed" >&2; exit 1; }
  rm -rf "$work/x" && mkdir "$work/x"
  measure bsdtar -xf "$package" -C "$work/x" >>"$work/untars"
  measure sh -c 'bsdtar -tf "$1" >/dev/null && mv "$2/app" "$2/old" 2>/dev/null
                 mkdir "$2/app" && bsdtar -xf "$1" -C "$2/app" && rm -rf "$2/old"' \
    sh "$package" "$work/y" >>"$work/same"
done
f_us=$(median "$work/firsts" 1) x_us=$(median "$work/lists" 1)
echo "first installation of 3,000 entries (median of $rounds): launcher $(ms "$f_us") ms |" \
     "bsdtar -tf + bsdtar -xf $(ms "$x_us") ms: $(ratio "$f_us" "$x_us")x (target 1.1x)"
u_us=$(median "$work/upgrades" 1) t_us=$(median "$work/untars" 1) s_us=$(median "$work/same" 1)
echo "upgrade of 3,000 entries (median of $rounds): launcher $(ms "$u_us") ms |" \
     "bsdtar -xf $(ms "$t_us") ms: $(ratio "$u_us" "$t_us")x |" \
     "count + move + extract + remove with the tools $(ms "$s_us") ms: $(ratio "$u_us" "$s_us")x"
