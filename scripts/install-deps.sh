#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the demo need.
# Does nothing when everything is already present.
set -euo pipefail

packages=(
  build-essential cmake ninja-build ccache pkg-config
  clang libclang-rt-14-dev
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  clang-format
  libfreetype-dev libfontconfig-dev fonts-dejavu-core fonts-liberation2
  libcairo2-dev libpng-dev libjpeg62-turbo-dev libgif-dev libtiff-dev libimagequant-dev
  zlib1g-dev
  qpdf poppler-utils librsvg2-bin
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

if [ "$(id -u)" -ne 0 ]; then
  echo "install-deps: missing packages: ${missing[*]} (run as root to install them)" >&2
  exit 1
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}"
