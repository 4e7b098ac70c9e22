#!/usr/bin/env bash
# Installs what is missing, builds the launcher and prints the absolute path of its
# executable (build progress goes to standard error). SKELDA_BUILD_DIR picks another build
# folder than build/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh >&2
build="${SKELDA_BUILD_DIR:-build}"
cmake -S . -B "$build" -G Ninja >/dev/null
cmake --build "$build" --target skelda-launcher -j"$(nproc)" | tail -n 1 >&2
echo "$(pwd)/$build/ui-client/launcher/skelda-launcher"
