#!/usr/bin/env bash
# Whole-process benchmarks of the launcher, each against a reference run in the same
# session, printed as ratios:
#   1. a launcher run with no upgrade needed, to the client started and the process ended,
#      against bench/launcher/bare_qt.cpp (QApplication + QProgressDialog, then quit):
#      median wall time and peak resident memory (targets: 1.3x and 1.2x);
#   2. durable first installations and upgrades, on a fresh ext4 volume each (a loop-mounted
#      image), of packages of 3,000 files of 50 KiB, 30,000 of 1 KiB and 100,000 of 64 bytes,
#      against `bsdtar -xf` followed by `sync -f` (syncfs, as the launcher flushes), and the
#      upgrades also against `mv` + `bsdtar -xf` + `sync -f` + `rm -rf` (targets: 1.10x at
#      3,000, 1.15x at 30,000 and 100,000).
#   bench/launcher/run.sh [BUILD_DIR[,BUILD_DIR...]] [RUNS] [ROUNDS]   (defaults: build, 25, 3)
# With several build folders (build,build-qt6: Qt 5 and Qt 6), case 1 runs the launchers and
# bare programs of all of them interleaved; case 2 uses the first folder. Case 2 mounts loop
# devices, so it needs root; SIZES="files:bytes ..." chooses other packages, COMPRESS=none
# an uncompressed one.
set -euo pipefail
cd "$(dirname "$0")/../.."
root=$(pwd)
IFS=, read -r -a builds <<<"${1:-build}"
runs="${2:-25}"
rounds="${3:-3}"
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
mnt="$work/mnt"
mkdir "$mnt"
unmount() { umount "$mnt" 2>/dev/null || true; [ -z "${loop:-}" ] || losetup -d "$loop"; loop=""; }
trap 'unmount; rm -rf "$work" "${image:-}"' EXIT

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

# 2. Durable installations. Each timed run gets a fresh ext4 volume, so that no earlier mass
# deletion slows its file creation (ext4 skips recently freed inodes; the figures swung 5x on
# a long-lived volume), and the flushes reach the disk (tmpfs ignores them; the loop device
# writes past the page cache of its image file). Inode tables and journal are written at
# mkfs time, not by a kernel thread during the timing.
image=$(mktemp -p "${BENCH_DISK:-/var/tmp}" skelda-bench-XXXXXX.img)
fresh_volume() {
  unmount
  truncate -s 0 "$image" && truncate -s 2G "$image"
  mkfs.ext4 -q -F -N 300000 -E lazy_itable_init=0,lazy_journal_init=0 "$image"
  loop=$(losetup -f --show --direct-io=on "$image")
  mount "$loop" "$mnt"
  mkdir -p "$mnt/home/.SkeldaBackup"
}
info="$mnt/home/.SkeldaBackup/Skelda.app/Contents/Resources/INFO"
for size in ${SIZES:-3000:51200 30000:1024 100000:64}; do
  files=${size%:*} bytes=${size#*:}
  tree="$work/tree$files"
  mkdir -p "$tree/Contents/MacOS"
  cp "$client" "$tree/Contents/MacOS/skelda-backup-ui"
  python3 - "$tree/Contents/Resources" "$files" "$bytes" <<'PY'
import os, sys
root, files, size = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
for i in range(files):
    folder = f"{root}/d{i // 100:04d}"
    os.makedirs(folder, exist_ok=True)
    with open(f"{folder}/f{i:06d}", "wb") as out:
        out.write(os.urandom(size))
PY
  tools/make-bundle.sh --launcher "$launcher" --client "$tree" --version 1.0.200 \
    --compress "${COMPRESS:-gzip}" \
    --out "$work/Big$files.app" >/dev/null
  exe="$work/Big$files.app/Contents/MacOS/skelda-launcher"
  package="$work/Big$files.app/Contents/Resources/package/skelda.vpk"
  rm -rf "$tree"
  : >"$work/first" && : >"$work/untar" && : >"$work/upgrade" && : >"$work/tools"
  for _ in $(seq 1 "$rounds"); do
    fresh_volume
    HOME="$mnt/home" measure "$exe" >>"$work/first"
    fresh_volume
    mkdir "$mnt/x"
    measure sh -c 'bsdtar -xf "$1" -C "$2" && sync -f "$2"' sh "$package" "$mnt/x" >>"$work/untar"
    # The upgrades replace an installed build 199 of the same size, made durable untimed.
    fresh_volume
    HOME="$mnt/home" "$exe" >/dev/null 2>&1
    printf '[Version]\nbuild_version=199\n' >"$info"
    sync -f "$mnt"
    HOME="$mnt/home" measure "$exe" >>"$work/upgrade"
    [ "$(sed -n 's/^build_version=//p' "$info")" = 200 ] || { echo "upgrade failed" >&2; exit 1; }
    fresh_volume
    mkdir "$mnt/app" && bsdtar -xf "$package" -C "$mnt/app" && sync -f "$mnt"
    measure sh -c 'cd "$2" && mv app old && mkdir app && bsdtar -xf "$1" -C app && sync -f . &&
                   rm -rf old' sh "$package" "$mnt" >>"$work/tools"
  done
  unmount
  f=$(median "$work/first" 1) x=$(median "$work/untar" 1)
  u=$(median "$work/upgrade" 1) t=$(median "$work/tools" 1)
  echo "$files files of $bytes bytes (median of $rounds):" \
       "first installation $(ms "$f") ms, upgrade $(ms "$u") ms |" \
       "bsdtar -xf + sync $(ms "$x") ms: $(ratio "$f" "$x")x, $(ratio "$u" "$x")x |" \
       "mv + bsdtar -xf + sync + rm -rf $(ms "$t") ms: upgrade $(ratio "$u" "$t")x"
done
