# shellcheck shell=bash
# Sourced by ./run, ./test and .ci/run: installs what is missing, configures and builds.
# Everything is said on stderr and nothing is read from stdin: both belong to the program that is started.

Root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
PackageTable="$Root/scripts/packages"
RefusedPackages="$Root/build/refused-packages"

# The parts that the build can leave out, and the switch of each.
declare -A PartSwitch=(
  [desktop]=QVES_DESKTOP [espeak]=QVES_ESPEAK [sounds]=QVES_SOUNDS
  [tests]=QVES_TESTS [benchmarks]=QVES_BENCHMARKS)

say() { echo "$(basename "$0"): $*" >&2; }
fail() { say "$@"; exit 1; }

is_debian() { command -v dpkg-query >/dev/null; }

# One caller at a time prepares; the lock ends with release_lock or with the script.
take_lock() {
  mkdir -p "$Root/build"
  exec {LockFd}>"$Root/build/lock"
  flock "$LockFd"
}
release_lock() { exec {LockFd}>&-; }

# list_packages USES [PART]: "part package" of the table for these uses ("program", "program|test").
list_packages() {
  awk -v uses="^($1)\$" -v part="${2:-}" \
    '!/^#/ && NF && $1 ~ uses && (part == "" || $2 == part) {print $2, $3}' "$PackageTable"
}

# Fills Installed with those packages of the table that are installed.
declare -A Installed=()
read_installed() {
  Installed=()
  local state package
  while read -r state package; do
    if [[ $state == installed ]]; then Installed[$package]=1; fi
  done < <(list_packages '.*' | awk '{print $2}' |
    xargs dpkg-query --show --showformat "\${db:Status-Status} \${Package}\n" 2>/dev/null)
}

# missing_packages USES: "part package" of what is neither installed nor refused before.
missing_packages() {
  local part package
  while read -r part package; do
    [[ -n ${Installed[$package]:-} ]] && continue
    grep -qsxF "$package" "$RefusedPackages" && continue
    echo "$part $package"
  done < <(list_packages "$1")
}

# as_root_apt ARGS: apt-get as root, asking nothing.
as_root_apt() {
  local command=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=500 "$@")
  [[ $EUID -eq 0 ]] || command=(sudo "${command[@]}")
  "${command[@]}" </dev/null >>"$Root/build/apt.log" 2>&1
}
apt_install() { as_root_apt install -y --no-install-recommends "$@"; }

is_vital() { [[ $1 == core || $1 == tests ]]; }

# refuse PART PACKAGE...: what happens without these packages.
refuse() {
  local part=$1
  shift
  is_vital "$part" && fail "these packages could not be installed: $*. The last lines of build/apt.log:
$(tail -n 5 "$Root/build/apt.log" 2>/dev/null)
Install them as root (apt-get install $*) and try again."
  say "going on without $part: could not install $*. Delete build/refused-packages to try again."
  printf '%s\n' "$@" >>"$RefusedPackages"
}

# install_packages USES: installs what is missing, part by part where all at once fails.
install_packages() {
  is_debian || {
    say "this is no Debian: scripts/packages lists what the build needs"
    return 0
  }
  read_installed
  local missing part packages
  missing="$(missing_packages "$1")"  # lines of "part package"
  [[ -n $missing ]] || return 0
  say "installing these Debian packages:"
  awk 'NR == FNR {wanted[$2]; next} ($3 in wanted) && !/^#/ {
    why = $4; for (i = 5; i <= NF; ++i) why = why " " $i; printf "  %-28s %s\n", $3, why}' \
    <(echo "$missing") "$PackageTable" >&2
  if [[ $EUID -ne 0 ]] && ! command -v sudo >/dev/null; then
    say "only root can install packages, and there is no sudo"
  else
    as_root_apt update || say "apt-get update failed; going on with the package lists that are there"
  fi
  mapfile -t packages < <(awk '{print $2}' <<<"$missing")
  if ! apt_install "${packages[@]}"; then
    while read -r part; do
      mapfile -t packages < <(awk -v part="$part" '$1 == part {print $2}' <<<"$missing")
      apt_install "${packages[@]}" || refuse "$part" "${packages[@]}"
    done < <(awk '!seen[$1]++ {print $1}' <<<"$missing")
  fi
  read_installed
}

# build_switches: what the build leaves out, judged by the packages that are there.
build_switches() {
  is_debian || return 0
  local part package value
  for part in desktop espeak sounds tests benchmarks; do
    value=ON
    while read -r _ package; do
      [[ -n ${Installed[$package]:-} ]] || value=OFF
    done < <(list_packages '.*' "$part")
    echo "-D${PartSwitch[$part]}=$value"
  done
}

# configure PRESET [SWITCH...]: configures when that was not yet done with these switches and packages in this place.
configure() {
  local preset=$1 folder="$Root/build/$1" wanted
  local stamp="$folder/configured-with"
  shift
  wanted="$Root $* $(printf '%s\n' "${!Installed[@]}" | sort | tr '\n' ' ')"
  [[ -f $folder/build.ninja && $stamp -nt $Root/CMakePresets.json && $(cat "$stamp") == "$wanted" ]] && return 0
  say "configuring and building ($preset); the first time this takes some minutes"
  run_logged "$preset" configure cmake --fresh --preset "$preset" "$@"
  echo "$wanted" >"$stamp"
}

# build PRESET [TARGET...]
build() {
  local preset=$1
  shift
  run_logged "$preset" build cmake --build --preset "$preset" ${1:+--target "$@"}
}

# run_logged PRESET STEP COMMAND...: in the project's folder, quiet unless it fails.
run_logged() {
  local log="$Root/build/$1-$2.log" step=$2
  shift 2
  (cd "$Root" && "$@") </dev/null >"$log" 2>&1 && return 0
  grep -vE '^\[[0-9]+/[0-9]+\]' "$log" | head -n 100 >&2 || true
  fail "the step \"$step\" failed: $*
Its complaints are above, its whole output is in ${log#"$Root"/}. Mend that and try again."
}
