#!/usr/bin/env bash
# Makes a release that anyone can rebuild from the same commit and check: installs what is
# missing, builds the launcher in Release (no tests, no benchmarks) in build-release/
# (build-release-qt6/ with Qt 6), assembles "dist/Skelda Backup.app" with the bundle tool and
# prints the SHA-256 of the package and of the launcher, to compare with another build.
#   scripts/release.sh --version MAJOR.MINOR.BUILD --client DIR [--qt 5|6]
# On macOS it prints the README's steps instead: a release there is deployed and signed with
# the maker's certificate, by hand.
set -euo pipefail

version="" client="" qt=5
while [ $# -gt 1 ]; do
  case "$1" in
    --version) version="$2" ;;
    --client) client=$(realpath "$2") ;;
    --qt) qt="$2" ;;
    *) break ;;
  esac
  shift 2
done
if [ $# -gt 0 ] || [ -z "$version" ] || [ -z "$client" ]; then
  echo "usage: $0 --version MAJOR.MINOR.BUILD --client DIR [--qt 5|6]" >&2; exit 2
fi
cd "$(dirname "$0")/.."

if [ "$(uname)" = Darwin ]; then
  echo "A macOS release is deployed and signed by hand, as README.md says:"
  awk '/^### A release bundle, step by step/ { on = 1; next } on && /^##/ { exit } on' README.md
  exit 0
fi

scripts/install-deps.sh --qt "$qt"
qt_suffix=""
[ "$qt" = 5 ] || qt_suffix="-qt$qt"
build="build-release$qt_suffix"
out="dist/Skelda Backup.app"
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DSKELDA_QT_MAJOR="$qt" \
  -DSKELDA_TESTS=OFF -DSKELDA_BENCH=OFF >/dev/null
cmake --build "$build" --target skelda-launcher -j"$(nproc)"
tools/make-bundle.sh --launcher "$build/ui-client/launcher/skelda-launcher" --client "$client" \
  --version "$version" --out "$out"
sha256sum "$out/Contents/Resources/package/skelda.vpk" "$out/Contents/MacOS/skelda-launcher"
