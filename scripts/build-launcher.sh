#!/usr/bin/env bash
# Installs what is missing, builds the launcher and prints the absolute path of its
# executable (build progress goes to standard error). SKELDA_BUILD_DIR picks another build
# folder than build/ (build-qt6/ with Qt 6).
#   scripts/build-launcher.sh [--qt 5|6]
set -euo pipefail
cd "$(dirname "$0")/.."
qt=5
if [ $# -gt 0 ]; then
  [ "$1" = --qt ] && [ $# -eq 2 ] || { echo "usage: $0 [--qt 5|6]" >&2; exit 2; }
  qt="$2"
fi
scripts/install-deps.sh --qt "$qt" >&2
qt_suffix=""
[ "$qt" = 5 ] || qt_suffix="-qt$qt"
build="${SKELDA_BUILD_DIR:-build$qt_suffix}"
cmake -S . -B "$build" -G Ninja -DSKELDA_QT_MAJOR="$qt" >/dev/null
cmake --build "$build" --target skelda-launcher -j"$(nproc)" | tail -n 1 >&2
echo "$(pwd)/$build/ui-client/launcher/skelda-launcher"
