#!/usr/bin/env bash
# Shows the launcher at work without touching your home folder: installs what is missing,
# builds, assembles a demo bundle around the sample client, and runs the launcher twice
# against a throw-away HOME: a first installation, then an upgrade to a newer build that
# stops the client started by the first run. Prints the per-user tree, the log lines and
# the client that was started. Headless (Qt's offscreen platform) unless DISPLAY is set.
#   scripts/demo.sh            (SKELDA_BUILD_DIR picks another build folder than build/)
#   scripts/demo.sh --qt 6     the launcher built with Qt 6, in build-qt6/
set -euo pipefail
cd "$(dirname "$0")/.."

launcher=$(scripts/build-launcher.sh "$@")

[ -n "${DISPLAY:-}" ] || export QT_QPA_PLATFORM=offscreen
work=$(mktemp -d)
export HOME="$work/home"
mkdir -p "$HOME"
export XDG_RUNTIME_DIR="$work/runtime"  # Qt warns without one
mkdir -m 700 "$XDG_RUNTIME_DIR"
user="$HOME/.SkeldaBackup"
clients=()
last_client=""

# Ends the sample clients of this demo: only processes whose HOME is the demo's own.
cleanup() {
  for pid in "${clients[@]}"; do
    if tr '\0' '\n' 2>/dev/null <"/proc/$pid/environ" | grep -qx "HOME=$HOME"; then
      kill "$pid" 2>/dev/null || true
    fi
  done
  rm -rf "$work"
}
trap cleanup EXIT

section() { printf '\n=== %s\n' "$*"; }
alive() { local s; s=$(ps -o stat= -p "$1" 2>/dev/null) && [ "${s:0:1}" != Z ]; }

# Runs the launcher of a bundle and reports what it did.
run_launcher() {
  local bundle="$1" log_lines_before
  log_lines_before=0
  [ -f "$user/log/launcher.log" ] && log_lines_before=$(wc -l <"$user/log/launcher.log")
  local start status=0
  start=$(date +%s%N)
  # Output into a file: the client started detached inherits it and outlives the launcher.
  (cd "$work" && "$bundle/Contents/MacOS/skelda-launcher" </dev/null >"$work/out" 2>&1) || status=$?
  echo "exit status $status after $(( ($(date +%s%N) - start) / 1000000 )) ms; output:"
  sed 's/^/  /' "$work/out"
  echo "--- log lines of this run"
  tail -n +"$((log_lines_before + 1))" "$user/log/launcher.log" | sed 's/^/  /'
  echo "--- per-user installation"
  (cd "$HOME" && find .SkeldaBackup -path '*/log' -prune -o -print | sort | sed 's/^/  /')
  echo "--- per-user version file"
  sed 's/^/  /' "$user/Skelda.app/Contents/Resources/INFO"
  local pid=""
  for _ in $(seq 1 50); do  # the client starts detached and records its pid itself
    pid=$(sed -n 's/^pid=//p' "$user/ui.pid" 2>/dev/null || true)
    [ -n "$pid" ] && [ "$pid" != "$last_client" ] && alive "$pid" && break
    sleep 0.1
  done
  if [ -n "$pid" ]; then
    clients+=("$pid")
    last_client="$pid"
    echo "--- client started: $(ps -o pid=,args= -p "$pid" || echo "pid $pid (gone)")"
  else
    echo "--- no client started"
  fi
}

section "first installation: build 100 into an empty HOME ($HOME)"
tools/make-bundle.sh --launcher "$launcher" --client tools/sample-client/skelda-backup-ui \
  --version 1.0.100 --out "$work/Skelda Backup.app" --debug all
run_launcher "$work/Skelda Backup.app"
first_client="$last_client"

section "upgrade: build 101, while the client of build 100 runs"
tools/make-bundle.sh --launcher "$launcher" --client tools/sample-client/skelda-backup-ui \
  --version 1.0.101 --out "$work/Skelda Backup 101.app" --debug all
run_launcher "$work/Skelda Backup 101.app"
if [ -n "$first_client" ] && ! alive "$first_client"; then
  echo "--- the client of build 100 (pid $first_client) was stopped for the upgrade"
fi

section "done; stopping the demo's clients and removing $work"
