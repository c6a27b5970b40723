# What the commands in this folder share: installing what is missing, building.
# To be sourced by a bash script.

set -euo pipefail

readonly project_dir="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"

# What the library, its programs and its tests are built with and run on.
readonly build_packages=(
  g++ cmake ninja-build ccache pkg-config qtbase5-dev libqt5svg5-dev zlib1g-dev fonts-dejavu-core
  libcli11-dev libtomlplusplus-dev libyaml-cpp-dev python3-jsonschema abigail-tools)

say() {
  printf '==> %s\n' "$*"
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

# install_packages PACKAGE...: installs those of Debian's packages that are missing.
install_packages() {
  local missing=() package
  for package in "$@"; do
    if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
      missing+=("$package")
    fi
  done
  if [ ${#missing[@]} -eq 0 ]; then
    return
  fi
  say "Installing ${missing[*]}"
  as_root apt-get update -q
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]: configures the preset and builds it, or the targets of it.
build() {
  local preset=$1
  shift
  say "Configuring and building ($preset)"
  (
    cd "$project_dir"
    cmake --preset "$preset"
    if [ $# -gt 0 ]; then
      cmake --build --preset "$preset" --target "$@"
    else
      cmake --build --preset "$preset"
    fi
  )
}

build_dir() {
  printf '%s/build/%s' "$project_dir" "$1"
}
