# For sourcing: installs the Debian packages that a command needs, and prepares the build.

kalvoraRoot=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packagesToBuildForWindows=(cmake ninja-build libstb-dev g++-mingw-w64-x86-64-posix)
packagesToRunOnAScreen=(wine wine64 xvfb xauth openbox xdotool imagemagick x11-utils x11-xserver-utils)
packagesToBuildAssets=(python3 python3-pil librsvg2-bin)
packagesToPackage=(nsis nsis-common g++-mingw-w64-i686-posix python3 python3-markdown)
packagesToTest=(g++ googletest libgtest-dev libgmock-dev librapidcheck-dev libbenchmark-dev clang-format python3
  python3-pil libfaketime g++-mingw-w64-i686-posix git cppcheck clang-tidy)
packagesToMeasure=(python3-xlib trayer)

say() { printf '%s\n' "$*"; }
fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

# The resource compiler hands the paths of the checkout to a shell, unquoted.
if [[ $kalvoraRoot == *[]\[\"\'\`\$\&\;\|\<\>\(\)\{\}\*\?\#\!^\\]* ]]; then
  fail "Kalvora cannot be built in a folder with such a name: $kalvoraRoot" \
    "Move the checkout to a path of letters, digits, spaces and the signs . , - _ + @ = ~ %"
fi

# helpAsked FILE ARGUMENT...: prints the comment at the head of the script if the first argument asks for it.
helpAsked() {
  case ${2-} in
    -h | --help) sed -n '2,/^[^#]/ { /^#/ s/^# \{0,1\}//p }' "$1" ;;
    *) return 1 ;;
  esac
}

# takeTurn ... endTurn: what changes the system's packages, the build folders or the staged program is done by
# one command of the checkout at a time.
takeTurn() {
  mkdir -p "$kalvoraRoot/build"
  exec {turn}>"$kalvoraRoot/build/turn.lock"
  if ! flock --nonblock "$turn"; then
    say "Another command is at work in this checkout; waiting for it." >&2
    flock "$turn"
  fi
}
endTurn() { exec {turn}>&-; }

# The packages of the list that are not installed, one a line.
missingPackages() {
  local package
  for package in "$@"; do
    if ! dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed; then
      printf '%s\n' "$package"
    fi
  done
}

# Sets asRoot to what stands before a command that needs root; without a way to root it says what to run.
findRoot() {
  local line="apt-get install --no-install-recommends $*" sudo=
  asRoot=()
  [ "$(id -u)" -ne 0 ] || return 0
  if command -v sudo >/dev/null; then
    sudo='sudo '
    asRoot=(sudo)
    if [ -t 0 ] || sudo -n true 2>/dev/null; then return 0; fi
  fi
  fail "Packages are missing, and installing them needs root. Run this${sudo:- as root}, then the same command again:
    $sudo$line"
}

# Names of packages differ from system to system.
refuseUnknownPackages() {
  local package unknown=()
  for package in "$@"; do
    apt-cache show --no-all-versions "$package" >/dev/null 2>&1 || unknown+=("$package")
  done
  [ "${#unknown[@]}" -eq 0 ] ||
    fail "$(. /etc/os-release && printf '%s' "$PRETTY_NAME") has no package called ${unknown[*]}." \
      "The scripts are at home on Debian 12. Elsewhere install what holds the same and build with cmake (see CONTRIBUTING.md)."
}

# downloadOf PACKAGE...: how much is to be fetched, with all that the packages need.
downloadOf() {
  apt-get install -y --no-install-recommends --print-uris "$@" 2>/dev/null </dev/null |
    awk '/^\047/ {files++; bytes += $3}
      END {printf "With what they need: %d packages to download, %.0f MB\n", files, bytes / 1e6}'
}

# tellProgress LOG: of what apt-get says, how far it is; the rest goes into the log.
tellProgress() {
  awk -v log_file="$1" -F: '
    $1 == "dlstatus" {doing = "Downloading"}
    $1 == "pmstatus" {doing = "Installing"}
    $1 != "dlstatus" && $1 != "pmstatus" {print >>log_file; next}
    {step = doing " " int($3 / 10) * 10 " %"}
    step != told {print "  " step; fflush(); told = step}'
}

# installPackages LOG PACKAGE...
installPackages() {
  local log=$1
  shift
  "${asRoot[@]}" apt-get update >"$log" 2>&1 </dev/null || return 1
  refuseUnknownPackages "$@"
  downloadOf "$@"
  "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    -o APT::Status-Fd=1 -o DPkg::Lock::Timeout=600 "$@" 2>&1 </dev/null {turn}>&- | tellProgress "$log"
}

# ensurePackages PACKAGE...: installs what is missing, or says what is missing and ends.
ensurePackages() {
  local missing
  command -v dpkg-query >/dev/null ||
    fail "This is not a Debian system: install what these Debian packages hold, and build with cmake (see CONTRIBUTING.md): $*"
  mapfile -t missing < <(missingPackages "$@")
  [ "${#missing[@]}" -gt 0 ] || return 0
  takeTurn
  # Whoever had the turn before may have brought them.
  mapfile -t missing < <(missingPackages "$@")
  [ "${#missing[@]}" -eq 0 ] || installMissing "${missing[@]}"
  endTurn
}

installMissing() {
  local asRoot log
  findRoot "$@"
  log=$(mktemp)
  say "Missing: $*"
  if ! installPackages "$log" "$@"; then
    tail -n 30 "$log" >&2
    fail "These packages are missing and could not be installed (log: $log): $*"
  fi
  rm -f "$log"
}

# clang, and the libraries of its own version that its sanitizers need.
ensureClang() {
  local version
  ensurePackages clang
  version=$(clang -dumpversion)
  ensurePackages "libclang-rt-${version%%.*}-dev"
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
  takeTurn
  say "Building $preset"
  if ! (cd "$kalvoraRoot" && cmake --preset "$preset" "${options[@]}") >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    fail "Configuring $preset failed."
  fi
  cmake --build "$kalvoraRoot/build/$preset" -j 2 "${targets[@]}" </dev/null || fail "Building $preset failed."
  endTurn
}
