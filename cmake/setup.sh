# shellcheck shell=bash
# Sourced by ./run and ./test: installs missing Debian packages and makes `build <preset>` available.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

install_packages() {
  local missing=()
  while read -r package; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done < <(grep -v '^#' packages.txt)
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "Installing ${missing[*]}"
  local root=()
  [ "$(id -u)" -eq 0 ] || root=(sudo)
  "${root[@]}" apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build() {
  cmake --preset "$1" >"$(log_of "$1")" 2>&1 || { cat "$(log_of "$1")"; return 1; }
  cmake --build --preset "$1" "${@:2}"
}

log_of() {
  mkdir -p build
  echo "build/configure-$1.log"
}

install_packages
