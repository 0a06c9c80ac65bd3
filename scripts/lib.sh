# Functions and variables for the other scripts and .ci/run, which source this file: the root of the
# tree, the packages that a build needs, and how to build and test.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)
cd "$root"

build_packages=(g++ cmake ninja-build pkg-config python3 libgtest-dev libgmock-dev libbenchmark-dev
  libcli11-dev nlohmann-json3-dev zlib1g-dev libzip-dev libsqlite3-dev
  libxlsxwriter-dev python3-openpyxl)

# install_missing PACKAGE...: installs those of the Debian packages that are missing.
install_missing() {
  command -v dpkg-query >/dev/null || return 0
  local package missing=() sudo=()
  for package; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "Installing ${missing[*]}" >&2
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  "${sudo[@]}" apt-get update -qq
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
    --no-install-recommends "${missing[@]}" </dev/null >/dev/null
}

# install_node: installs Node.js and npm unless the machine has them from another source.
install_node() {
  if ! command -v node >/dev/null || ! command -v npm >/dev/null; then install_missing nodejs npm; fi
}

# build PRESET [TARGET...]: configures and builds the targets, or all targets if none is given.
build() {
  local preset=$1
  shift
  cmake --preset "$preset" --log-level=WARNING
  cmake --build --preset "$preset" --parallel "$jobs" ${1:+--target "$@"}
}

# run_tests PRESET: runs all tests; the summary of ctest comes last.
run_tests() {
  ctest --preset "$1" --parallel "$jobs" --no-tests=error
}
