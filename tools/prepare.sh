# shellcheck shell=bash disable=SC2154  # `root` is set by the script that sources this one
# What `run` and `test` have in common: missing Debian packages are installed, a preset is built.
# Sourced by both, with `root` set to the folder of the project.

say() { printf 'Orvane: %s\n' "$*" >&2; }

# Prints the packages of one group of dependencies.txt, one on each line.
packages_of() {
  awk -v group="[$1]" '/^\[/ { inside = ($1 == group); next } inside && NF && !/^#/ { print $1 }' \
    "$root/dependencies.txt"
}

# Installs those of the named packages that are missing. Asks apt for nothing when none is.
need_packages() {
  local present missing=() package
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    say "this needs Debian 12 or 13: there is no apt-get here to install packages with."
    exit 1
  fi
  present=" $(dpkg-query -W -f '${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
  for package in "$@"; do
    [[ $present == *" installed:$package "* ]] || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  local as_root=()
  if (($(id -u) != 0)); then
    if ! command -v sudo >/dev/null; then
      say "these Debian packages are missing: ${missing[*]}"
      say "to install them I must be root, or sudo must be there, and neither is so."
      say "As root, type: apt-get update && apt-get install ${missing[*]}"
      exit 1
    fi
    as_root=(sudo)
  fi

  say "installing what is missing: ${missing[*]}"
  if ! quietly "${as_root[@]}" apt-get -qq -o DPkg::Lock::Timeout=300 update ||
    ! quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y \
      --no-install-recommends -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 \
      install "${missing[@]}"; then
    say "the packages could not be installed; apt-get says why just above."
    exit 1
  fi
}

# Runs a command and shows what it printed only if it fails.
quietly() {
  local log status=0
  log=$(mktemp)
  "$@" >"$log" 2>&1 || status=$?
  ((status == 0)) || cat "$log" >&2
  rm -f "$log"
  return "$status"
}

# Builds the named targets of a preset, or all of them. Configures only a tree that is new, was moved,
# or is older than the presets; from then on Ninja sees for itself which CMake file has changed. The
# first build shows on a terminal how far it is; all others print nothing but what went wrong.
build_preset() {
  local preset=$1 tree=$root/build/$1 targets=("${@:2}") fresh=() how=(quietly)
  if [[ ! -f $tree/build.ninja || $root/CMakePresets.json -nt $tree/build.ninja ]] ||
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$tree/CMakeCache.txt"; then
    say "building the preset '$preset'; the first time this takes some minutes."
    [[ ! -t 1 ]] || how=()
    [[ ! -f $tree/CMakeCache.txt ]] || fresh=(--fresh)
    if ! quietly cmake -S "$root" --preset "$preset" "${fresh[@]}"; then
      rm -f "$tree/build.ninja"
      say "the build could not be prepared; CMake says why just above."
      exit 1
    fi
  fi
  if ! "${how[@]}" cmake --build "$tree" ${targets:+--target "${targets[@]}"}; then
    say "the build failed; the compiler says why just above."
    exit 1
  fi
}

# Says why each skipped test was skipped, from the report of a run of ctest.
why_left_out() {
  local name reason
  while IFS=$'\t' read -r name reason; do
    say "$name did not run: $reason"
  done < <(awk '
    /<testcase / { split($0, word, "\""); name = word[2]; out = last = ""; told = 0 }
    /<skipped message="SKIP/ { out = name }
    { sub(/.*<system-out>/, "") }
    out == "" { next }
    /<\/system-out>/ { printf "%s\t%s\n", out, last; out = ""; next }
    told { last = $0; told = 0; kept = out; next }
    / Skipped$/ { told = 1; next }  # our own tests give the reason on the next line
    NF && kept != out { last = $0 }' "$1")
}
