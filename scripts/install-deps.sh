#!/usr/bin/env bash
# Installs every Debian 12 package the project needs to build, test, fuzz,
# benchmark and take screenshots. Quick and silent when all is there.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git
  qtbase5-dev qttools5-dev qttools5-dev-tools libqt5network5
  libarchive-dev libarchive-tools zlib1g-dev
  libicu-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-14-dev
  xvfb xauth imagemagick x11-utils
  # The dialog's fonts: a stand-in for Arial with the same metrics, and one font for
  # Chinese (simplified and traditional), Japanese and Korean.
  fonts-liberation fonts-wqy-microhei
  procps util-linux hyperfine time python3
  locales  # locale sources for localedef (the logger test builds fr_FR)
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
