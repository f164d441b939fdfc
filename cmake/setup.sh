# Shell functions that ./test, ./compparm and the scripts in .ci share: the packages that the build needs, and how it is configured.
# To be sourced by bash.
# shellcheck shell=bash disable=SC2034

zeb_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# The one list of Debian packages, by what they are for.
zeb_packages_build=(g++ cmake ninja-build nlohmann-json3-dev libcli11-dev libopenmpi-dev openmpi-bin)
zeb_packages_test=(libgtest-dev libgmock-dev locales pkg-config)
zeb_packages_mpich=(mpich libmpich-dev) # stands beside Open MPI, which keeps the plain names
zeb_packages_bench=(libbenchmark-dev libinih-dev libsimpleini-dev)
zeb_packages_ci=(clang clang-format clang-tidy libclang-rt-dev llvm python3 shellcheck ccache git)

# zeb_say TEXT...: progress, on standard error, so that a program's output stays its own.
zeb_say() {
  printf '%s\n' "$*" >&2
}

# zeb_install PACKAGE...: installs those that are missing; asks neither the network nor for rights when all are there.
zeb_install() {
  local package missing=() run=()
  if ! command -v dpkg-query >/dev/null; then
    return 0 # not Debian: CMake says what it misses
  fi
  for package in "$@"; do
    # A package that others mention is known as "not-installed".
    if [[ " $(dpkg-query -W -f='${db:Status-Status} ' "$package" 2>/dev/null)" != *" installed "* ]]; then
      missing+=("$package")
    fi
  done
  if ((${#missing[@]} == 0)); then
    return 0
  fi
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      zeb_say "Packages are missing; as root: apt-get install ${missing[*]}"
      return 1
    fi
    run=(sudo)
  fi
  zeb_say "Installing ${missing[*]}"
  # Everything goes to standard error. Without the lists of a first update no package is found.
  {
    "${run[@]}" apt-get update -q &&
      "${run[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
  } </dev/null >&2
}

# zeb_configure PRESET [CMAKE-ARGUMENT...]: configures build/PRESET where that has not been done yet or arguments are
# given. An existing tree keeps its generator, and the build itself sees to it that it is configured again when needed.
zeb_configure() {
  local preset=$1
  shift
  if [[ -f $zeb_root/build/$preset/CMakeCache.txt && -f $zeb_root/build/$preset/.configured && $# -eq 0 ]]; then
    return 0
  fi
  if [[ ! -f $zeb_root/build/$preset/CMakeCache.txt ]] && command -v ninja >/dev/null; then
    set -- -G Ninja "$@"
  fi
  (cd "$zeb_root" && cmake --preset "$preset" "$@") && touch "$zeb_root/build/$preset/.configured"
}

# zeb_build PRESET [TARGET...]: builds with all cores.
zeb_build() {
  local preset=$1
  shift
  cmake --build "$zeb_root/build/$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}
