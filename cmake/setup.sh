# shellcheck shell=bash
# Shared by ./run and ./test, which source it: packages, configuration, build and display.
# Progress goes to standard error, so that standard output stays the program's own.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packages=(
  g++ cmake ninja-build
  libvtk9-dev libvtk9-qt-dev qtbase5-dev libeigen3-dev libboost-dev
  zlib1g-dev libzip-dev libhdf5-dev
  qttools5-dev qttools5-dev-tools qttranslations5-l10n
  libgtest-dev poppler-utils qpdf
  xvfb xauth libgl1-mesa-dri fonts-liberation fonts-dejavu-core locales
)

# Installed as far as the distribution has them.
optional_packages=()

say() { echo "$*" >&2; }

missing_packages() {
  local installed package wanted=("${packages[@]}" "${optional_packages[@]}")
  installed=" $(dpkg-query -W -f='${Package}=${db:Status-Status} ' "${wanted[@]}" 2>/dev/null || true)"
  for package in "${wanted[@]}"; do
    [[ $installed == *" $package=installed "* ]] || echo "$package"
  done
}

# known_packages PACKAGE...: these without the optional ones that apt does not know.
known_packages() {
  local package
  for package in "$@"; do
    if [[ " ${optional_packages[*]} " == *" $package "* ]] && ! apt-cache show "$package" >/dev/null 2>&1; then
      say "This distribution has no $package."
    else
      echo "$package"
    fi
  done
}

is_root() { ((EUID == 0)); }

as_root() {
  if is_root; then
    env "$@"
  else
    sudo env "$@"
  fi
}

install_packages() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    say "No apt here: expecting CMake, Ninja, VTK 9.1 with Qt 5, Eigen, Boost and GoogleTest to be installed."
    return
  fi
  local missing
  mapfile -t missing < <(missing_packages)
  ((${#missing[@]})) || return 0
  if ! is_root && ! command -v sudo >/dev/null; then
    say "Neither root nor sudo: let an administrator install ${missing[*]}"
    exit 1
  fi
  say "Installing ${missing[*]}"
  local apt=(DEBIAN_FRONTEND=noninteractive apt-get -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 -q -y)
  as_root "${apt[@]}" update >&2 </dev/null
  # Images without manual pages lack this folder, and the Java packages that VTK pulls in need it.
  as_root mkdir -p /usr/share/man/man1
  mapfile -t missing < <(known_packages "${missing[@]}")
  ((${#missing[@]})) || return 0
  as_root "${apt[@]}" install --no-install-recommends "${missing[@]}" >&2 </dev/null
}

# build PRESET [TARGET...]: brings build/PRESET up to date. Ninja reruns CMake itself when a CMake file changes.
# With ccache, where it is installed, what was compiled once is not compiled again.
build() {
  local preset=$1 tree=$root/build/$1
  shift
  if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
  fi
  local cache=$tree/CMakeCache.txt
  if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
    say "The checkout has moved: starting $tree afresh."
    rm -rf "$tree"
  fi
  if [[ ! -f $tree/build.ninja ]]; then
    (cd "$root" && cmake --preset "$preset") >&2
  fi
  ninja -C "$tree" "$@" >&2
}

# wants_no_window ARGUMENT...: whether the viewer's arguments ask for files or for text. Those after "--" are names.
wants_no_window() {
  local argument
  for argument in "$@"; do
    case $argument in
      --) return 1 ;;
      --export | --export=* | --gallery | --gallery=* | --help | -h | --version) return 0 ;;
    esac
  done
  return 1
}

has_display() { [[ -n ${DISPLAY:-} ]]; }

# Runs a command on a virtual display of its own. Without -noreset the display starts anew whenever its last client
# leaves, and refuses a test that comes meanwhile.
on_virtual_display() {
  xvfb-run -a -s "-screen 0 1920x1200x24 -noreset" "$@"
}

# File names and table headers may hold any letter, which the plain C locale cannot express.
use_utf8_locale() {
  local current=${LC_ALL:-${LC_CTYPE:-${LANG:-}}}
  case $current in
    *[Uu][Tt][Ff]8 | *[Uu][Tt][Ff]-8) ;;
    *) export LC_ALL=C.UTF-8 ;;
  esac
}
