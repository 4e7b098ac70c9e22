#!/usr/bin/env bash
# Installs every Debian 12 package the project needs to build, test, fuzz,
# benchmark and take screenshots. Quick and silent when all is there.
#   scripts/install-deps.sh [--qt 5|6]    the Qt to build with (default 5)
set -euo pipefail

qt=5
if [ $# -gt 0 ]; then
  [ "$1" = --qt ] && [ $# -eq 2 ] || { echo "usage: $0 [--qt 5|6]" >&2; exit 2; }
  qt="$2"
fi
case "$qt" in
  5) qt_packages=(qtbase5-dev qttools5-dev qttools5-dev-tools libqt5network5) ;;
  # qt6-qpa-plugins holds the platform plug-ins (offscreen, xcb): only recommended by
  # libqt6gui6, so --no-install-recommends would leave it out.
  6) qt_packages=(qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-qpa-plugins) ;;
  *) echo "usage: $0 [--qt 5|6]" >&2; exit 2 ;;
esac

packages=(
  build-essential cmake ninja-build pkg-config git
  "${qt_packages[@]}"
  libarchive-dev libarchive-tools zlib1g-dev
  libicu-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-14-dev
  xvfb xauth imagemagick x11-utils
  # The dialog's fonts: a stand-in for Arial with the same metrics, and one font for
  # Chinese (simplified and traditional), Japanese and Korean.
  fonts-liberation fonts-wqy-microhei
  procps util-linux hyperfine time python3
  strace  # records the file operations of a run for the power-cut trials
  locales  # locale sources for localedef
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
echo "installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
