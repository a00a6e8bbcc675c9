# shellcheck shell=bash
# Sourced by ./run and ./test: installs missing Debian packages and makes `build <preset>` available.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# logged <log> <command...>: runs the command and shows its output only if it fails.
logged() {
  local log=build/$1.log
  mkdir -p build
  "${@:2}" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}

install_packages() {
  local missing=()
  while read -r package; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done < <(grep -v '^#' packages.txt)
  [ ${#missing[@]} -gt 0 ] || return 0
  local root=()
  [ "$(id -u)" -eq 0 ] || root=(sudo)
  if [ ${#root[@]} -gt 0 ] && ! command -v sudo >/dev/null; then
    echo "sudo not found. Run as root: apt-get install --no-install-recommends ${missing[*]}" >&2
    return 1
  fi
  echo "Installing ${missing[*]}"
  "${root[@]}" apt-get update -qq
  logged packages "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}"
}

build() {
  logged "configure-$1" cmake --preset "$1"
  cmake --build --preset "$1" "${@:2}"
}

install_packages
