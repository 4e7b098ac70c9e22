#!/usr/bin/env bash
# Takes the pictures of the progress dialog kept in docs/: docs/dialog-enu.png (English),
# docs/dialog-fre.png (French) and docs/dialog-jpn.png (Japanese). Each is an upgrade run
# on a virtual X screen (Xvfb) against a throw-away HOME, held on screen by a running client
# that ignores SIGTERM, so that the launcher spends its five seconds stopping it while the
# dialog is shown.
#   scripts/screenshot.sh      (SKELDA_BUILD_DIR picks another build folder than build/)
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)

launcher=$(scripts/build-launcher.sh)
client="$root/tools/sample-client/skelda-backup-ui"

work=$(mktemp -d)
own_clients=()
orig_home=$HOME
cleanup() {
  export HOME="$orig_home"  # so that the commands below are not taken for clients
  for pid in "${own_clients[@]}"; do kill -KILL "$pid" 2>/dev/null || true; done
  # Clients started by the launchers run with a HOME inside $work.
  for env in /proc/[0-9]*/environ; do
    if tr '\0' '\n' 2>/dev/null <"$env" | grep -q "^HOME=$work/"; then
      pid=${env#/proc/}; kill -KILL "${pid%/environ}" 2>/dev/null || true
    fi
  done
  rm -rf "$work"
}
trap cleanup EXIT

tools/make-bundle.sh --launcher "$launcher" --client "$client" --version 1.0.100 \
  --out "$work/Old.app" >/dev/null
tools/make-bundle.sh --launcher "$launcher" --client "$client" --version 1.0.200 \
  --out "$work/Skelda Backup.app" >/dev/null

for pair in enu:C fre:fr_FR.UTF-8 jpn:ja_JP.UTF-8; do
  code=${pair%%:*} locale=${pair#*:}
  export HOME="$work/$code"
  mkdir -p "$HOME"
  # Build 100 installed, its client ended; then a client that will not stop on SIGTERM.
  QT_QPA_PLATFORM=offscreen "$work/Old.app/Contents/MacOS/skelda-launcher" \
    >/dev/null 2>&1 </dev/null
  for _ in $(seq 1 50); do [ -s "$HOME/.SkeldaBackup/ui.pid" ] && break; sleep 0.1; done
  kill -KILL "$(sed -n 's/^pid=//p' "$HOME/.SkeldaBackup/ui.pid")"
  rm -f "$HOME/.SkeldaBackup/ui.pid"
  SKELDA_SAMPLE_CLIENT_IGNORE_TERM=1 "$client" </dev/null >/dev/null 2>&1 &
  own_clients+=($!)
  disown  # the launcher kills it; no job report for that
  for _ in $(seq 1 50); do [ -s "$HOME/.SkeldaBackup/ui.pid" ] && break; sleep 0.1; done

  LANG=$locale LC_ALL=$locale xvfb-run -a -s "-screen 0 640x400x24" \
    tools/capture-dialog.sh "$work/Skelda Backup.app/Contents/MacOS/skelda-launcher" \
    "docs/dialog-$code.png" root 2>/dev/null
  echo "docs/dialog-$code.png ($locale): $(identify -format '%wx%h' "docs/dialog-$code.png")"
done
