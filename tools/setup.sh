# For sourcing: installs the Debian packages that a command needs, and prepares the build.

kalvoraRoot=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packagesToBuildForWindows=(cmake ninja-build libstb-dev g++-mingw-w64-x86-64-posix)
packagesToRunOnAScreen=(wine wine64 xvfb xauth openbox xdotool imagemagick x11-utils x11-xserver-utils)
packagesToPackage=(nsis nsis-common g++-mingw-w64-i686-posix python3)
packagesToTest=(g++ googletest libgtest-dev libgmock-dev librapidcheck-dev clang-format python3
  python3-pil libfaketime g++-mingw-w64-i686-posix git cppcheck clang-tidy)
packagesToMeasure=(python3-xlib trayer)
packagesToFuzz=(clang libclang-rt-14-dev)

say() { printf '%s\n' "$*"; }
fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

# The packages of the list that are not installed, one a line.
missingPackages() {
  local package
  for package in "$@"; do
    if ! dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed; then
      printf '%s\n' "$package"
    fi
  done
}

# ensurePackages PACKAGE...: installs what is missing, or says what is missing and ends.
ensurePackages() {
  local missing asRoot=()
  command -v dpkg-query >/dev/null ||
    fail "This is not a Debian system: install what these Debian packages hold, and build with cmake (see CONTRIBUTING.md): $*"
  mapfile -t missing < <(missingPackages "$@")
  [ "${#missing[@]}" -gt 0 ] || return 0
  say "Installing ${missing[*]}"
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null && { [ -t 0 ] || sudo -n true 2>/dev/null; }; then
      asRoot=(sudo)
    else
      fail "These packages are missing, and installing them needs root: ${missing[*]}"
    fi
  fi
  local log
  log=$(mktemp)
  if ! { "${asRoot[@]}" apt-get update &&
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } \
    >"$log" 2>&1 </dev/null; then
    tail -n 30 "$log" >&2
    fail "These packages are missing and could not be installed (log: $log): ${missing[*]}"
  fi
  rm -f "$log"
}

# Speeds up repeated builds where ccache is at hand; nothing depends on it.
useCcacheIfPresent() {
  if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
    export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER-ccache}
    export CCACHE_BASEDIR=${CCACHE_BASEDIR-$kalvoraRoot} CCACHE_NOHASHDIR=1
  fi
}

# configureAndBuild PRESET [-DNAME=VALUE...] [-- TARGET...]: quiet while all is well.
configureAndBuild() {
  local preset=$1 options=() targets=() log="$kalvoraRoot/build/configure-$1.log"
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do
    options+=("$1")
    shift
  done
  [ $# -gt 0 ] && shift
  [ $# -gt 0 ] && targets=(--target "$@")
  mkdir -p "$kalvoraRoot/build"
  say "Building $preset"
  if ! (cd "$kalvoraRoot" && cmake --preset "$preset" "${options[@]}") >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    fail "Configuring $preset failed."
  fi
  cmake --build "$kalvoraRoot/build/$preset" -j 2 "${targets[@]}" </dev/null || fail "Building $preset failed."
}
