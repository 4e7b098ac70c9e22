#!/usr/bin/env bash
# Kill trials of the upgrade transaction.
#
# Each trial installs an old per-user application under a temporary HOME, runs the upgrade
# (decision, HandlePackageUpgrade when asked, RemoveAgedFolders) through the service driver
# inside a temporary root bundle, and SIGKILLs it at a random moment between its start and a
# little after its usual end. Right after the kill the old application must be whole, either
# at APP or at exactly one backup name, unless APP already is the complete new application.
# Then the upgrade runs again to completion, and APP must be identical to the package.
#
# Backup folders may survive the rerun only when the kill fell between the end of the
# extraction and the clean-up (APP was already complete, so the rerun sees nothing to do);
# those trials are counted on their own line.
#
#   scripts/reliability/kill-upgrade-trials.sh [--trials N] [--files N] [--driver PATH] [--keep]
#
# The package holds the client, N files of random bytes and, as its very last entry, the
# version file Contents/Resources/INFO: a run killed mid-extraction leaves an application
# without a version file, which the next run treats as out of date and replaces.
set -euo pipefail

trials=100
files=400
driver=""
keep=0
while [ $# -gt 0 ]; do
  case "$1" in
    --trials) trials="$2"; shift 2 ;;
    --files) files="$2"; shift 2 ;;
    --driver) driver="$2"; shift 2 ;;
    --keep) keep=1; shift ;;
    *) echo "usage: $0 [--trials N] [--files N] [--driver PATH] [--keep]" >&2; exit 2 ;;
  esac
done
repo="$(cd "$(dirname "$0")/../.." && pwd)"
[ -n "$driver" ] || driver="$repo/build/tests/service/skelda-service-driver"
if [ ! -x "$driver" ]; then
  echo "driver program not found: $driver (build target skelda-service-driver)" >&2
  exit 2
fi
command -v bsdtar >/dev/null || { echo "bsdtar is needed to write the package" >&2; exit 2; }

work="$(mktemp -d "${TMPDIR:-/tmp}/skelda-kill-trials-XXXXXX")"
cleanup() { if [ "$keep" = 1 ]; then echo "work folder kept: $work"; else rm -rf "$work"; fi; }
trap cleanup EXIT

version_file() {  # build
  printf '[Version]\nmajor_version=1\nminor_version=0\nbuild_version=%s\nicon_overlay_version=1\n' "$1"
}

# Root installation: a bundle with blanks in its name, the driver in Contents/MacOS.
root="$work/root/Skelda Launcher.app"
mkdir -p "$root/Contents/MacOS" "$root/Contents/Resources/package" "$root/log"
cp "$driver" "$root/Contents/MacOS/skelda-service-driver"
echo "service_debug=7" > "$root/log/launcher.debug"
version_file 200 > "$root/Contents/Resources/INFO"

# The new application and its package, INFO last.
new="$work/new"
mkdir -p "$new/Contents/MacOS" "$new/Contents/Resources/files"
printf '#!/bin/sh\nexit 0\n' > "$new/Contents/MacOS/skelda-backup-ui"
chmod 755 "$new/Contents/MacOS/skelda-backup-ui"
for i in $(seq -w 1 "$files"); do
  head -c $(( (RANDOM % 24 + 8) * 1024 )) /dev/urandom > "$new/Contents/Resources/files/f$i"
done
version_file 200 > "$new/Contents/Resources/INFO"
(cd "$new" && { find Contents -type f ! -path Contents/Resources/INFO | sort
                echo Contents/Resources/INFO; } > "$work/entries")
bsdtar -czf "$root/Contents/Resources/package/skelda.vpk" -C "$new" -T "$work/entries"
last_entry="$(bsdtar -tf "$root/Contents/Resources/package/skelda.vpk" | tail -n 1)"
[ "$last_entry" = Contents/Resources/INFO ] || { echo "INFO is not the last entry" >&2; exit 1; }

# The old application.
old="$work/old"
mkdir -p "$old/Contents/MacOS" "$old/Contents/Resources/files"
printf '#!/bin/sh\nexit 1\n' > "$old/Contents/MacOS/skelda-backup-ui"
for i in $(seq -w 1 300); do
  head -c 4096 /dev/urandom > "$old/Contents/Resources/files/old$i"
done
version_file 100 > "$old/Contents/Resources/INFO"

home="$work/home"
user="$home/.SkeldaBackup"
app="$user/Skelda.app"

same_tree() { diff -r --no-dereference -q "$1" "$2" >/dev/null 2>&1; }
backups() { for d in "$app"_tmp "$app"_tmp[1-9]; do [ -e "$d" ] && echo "$d"; done; return 0; }
fresh_home() {
  rm -rf "$home"
  mkdir -p "$user/app"
  cp -a "$old" "$app"
  echo aged > "$user/app/left-over"
}
run_driver() { HOME="$home" "$root/Contents/MacOS/skelda-service-driver" upgrade >/dev/null 2>&1; }

# The length of a whole run sets the range of kill moments: the shortest of five warm runs
# (on a busy machine the times scatter widely, and kills after the end teach nothing).
fresh_home
run_driver
same_tree "$new" "$app" || { echo "a plain run does not install the package" >&2; exit 1; }
run_ms=""
for _ in 1 2 3 4 5; do
  fresh_home
  start_ns=$(date +%s%N)
  run_driver
  ms=$(( ($(date +%s%N) - start_ns) / 1000000 ))
  if [ -z "$run_ms" ] || [ "$ms" -lt "$run_ms" ]; then run_ms=$ms; fi
  run_times="${run_times:-}${run_times:+ }$ms"
done
span_ms=$(( run_ms * 11 / 10 + 5 ))
echo "package: $files files + client + INFO; uninterrupted runs: ${run_times} ms;" \
     "kills spread over 0..${span_ms} ms"

declare -A count=()
failures=0
backups_left=0
for trial in $(seq 1 "$trials"); do
  fresh_home
  delay_ms=$(( (RANDOM * 32768 + RANDOM) % (span_ms + 1) ))
  HOME="$home" "$root/Contents/MacOS/skelda-service-driver" upgrade >/dev/null 2>&1 &
  pid=$!
  sleep "$(printf '%d.%03d' $((delay_ms / 1000)) $((delay_ms % 1000)))"
  kill -KILL "$pid" 2>/dev/null || true
  status=0
  { wait "$pid"; } 2>/dev/null || status=$?

  # Where did the kill fall? Judge from the disk alone.
  mapfile -t left < <(backups)
  old_copies=0
  for d in "${left[@]}"; do same_tree "$old" "$d" && old_copies=$((old_copies + 1)); done
  if [ "$status" = 0 ]; then
    kind="finished before the kill"
  elif [ -d "$app" ] && same_tree "$new" "$app"; then
    if [ ${#left[@]} -gt 0 ]; then kind="killed between extraction and clean-up"
    else kind="killed after clean-up"; fi
  elif [ -d "$app" ] && same_tree "$old" "$app" && [ ${#left[@]} -eq 0 ]; then
    kind="killed before the rename"
  elif [ "$old_copies" -eq 1 ]; then
    kind="killed during extraction (old application at a backup name)"
  else
    kind="FAILED: old application lost"
  fi

  run_driver || true
  if ! same_tree "$new" "$app"; then
    kind="FAILED: rerun did not install the package"
  fi
  mapfile -t after < <(backups)
  if [ ${#after[@]} -gt 0 ]; then
    if [ "$kind" = "killed between extraction and clean-up" ]; then
      backups_left=$((backups_left + 1))
    else
      kind="FAILED: backups left after a kill outside the clean-up window"
    fi
  fi
  [ -e "$user/app" ] && kind="FAILED: aged folder still there"
  case "$kind" in FAILED*)
    failures=$((failures + 1))
    echo "trial $trial (kill at ${delay_ms} ms, status $status): $kind" >&2
    [ "$keep" = 1 ] && cp -a "$home" "$work/failed-trial-$trial" ;;
  esac
  count[$kind]=$(( ${count[$kind]:-0} + 1 ))
done

echo "trials: $trials"
for kind in "${!count[@]}"; do printf '  %4d  %s\n' "${count[$kind]}" "$kind"; done | sort -k2
echo "trials whose backup folders survived the rerun (kill between extraction and clean-up):" \
     "$backups_left"
echo "failures: $failures"
[ "$failures" -eq 0 ]
