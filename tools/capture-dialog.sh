#!/usr/bin/env bash
# Runs a launcher on the X display in $DISPLAY, waits for its progress dialog, and saves a
# picture of it. The run must be slow enough for the dialog to be seen (an upgrade that
# stops a client or extracts a big package). Prints "title: " and the window title.
#   capture-dialog.sh LAUNCHER OUT.png [root|window]
# "window" (the default) captures the dialog alone; "root" captures the screen around it,
# cut to the dialog with a small margin.
set -euo pipefail
launcher="$1" out="$2" what="${3:-window}"
[ -n "${DISPLAY:-}" ] || { echo "capture-dialog: no DISPLAY" >&2; exit 2; }

QT_QPA_PLATFORM=xcb "$launcher" >/dev/null &
pid=$!
wid=""
for _ in $(seq 1 600); do  # up to 60 s for the dialog to be mapped (busy machines)
  wid=$(xwininfo -root -tree 2>/dev/null |
        awk '/"Skelda Backup"/ && /skelda-launcher/ {print $1; exit}')
  if [ -n "$wid" ] && xwininfo -id "$wid" 2>/dev/null | grep -q 'IsViewable'; then break; fi
  wid=""
  kill -0 "$pid" 2>/dev/null || break
  sleep 0.1
done
if [ -z "$wid" ]; then
  wait "$pid" || true
  echo "capture-dialog: the dialog never appeared" >&2
  exit 1
fi
sleep 1  # let the dialog paint its label and bar
if [ "$what" = root ]; then
  info=$(xwininfo -id "$wid")
  geo() { awk -v k="$1" -F: '$1 ~ k {gsub(/ /, "", $2); print $2}' <<<"$info"; }
  m=12 x=$(geo "Absolute upper-left X") y=$(geo "Absolute upper-left Y")
  w=$(geo "Width") h=$(geo "Height")
  x0=$(( x > m ? x - m : 0 )) y0=$(( y > m ? y - m : 0 ))
  import -window root -crop "$((w + 2 * m))x$((h + 2 * m))+$x0+$y0" +repage "$out"
else
  import -window "$wid" "$out"
fi
xwininfo -id "$wid" | sed -n 's/^xwininfo: Window id: [^ ]* "\(.*\)"$/title: \1/p'
wait "$pid"
