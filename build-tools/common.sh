# What ./run and ./check share: messages, Debian packages, configuring and building a preset.
# Sourced by them, with `root` set to the folder of the sources. All that is said here goes to
# standard error, because standard output belongs to the program.
# shellcheck shell=bash
# shellcheck disable=SC2034

root=${root:?the folder of the sources}

build_packages=(g++ cmake ninja-build qt6-base-dev fonts-liberation)
# Installed along with the others; Tessarin builds without them.
helpful_packages=(ccache)

jobs=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}
announced=no

say() {
    printf '%s\n' "$*" >&2
}

announce_build() {
    if [[ $announced == no ]]; then
        say "Building Tessarin..."
        announced=yes
    fi
}

# show_log FILE: the end of a log, for a step that failed.
show_log() {
    tail -n 40 "$1" >&2
    say "The whole log is in $1"
}

# missing_packages PACKAGE...: prints those that are not installed, one a line.
missing_packages() {
    local installed package
    installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null) ||
        true
    for package in "$@"; do
        if [[ $'\n'$installed$'\n' != *$'\n'"installed $package"$'\n'* ]]; then
            printf '%s\n' "$package"
        fi
    done
}

can_be_root() {
    [[ $EUID -eq 0 ]] || command -v sudo >/dev/null
}

# Without a terminal nobody can type a password, so sudo must not ask for one.
as_root() {
    if [[ $EUID -eq 0 ]]; then
        "$@"
    elif [[ -t 0 ]]; then
        sudo "$@"
    else
        sudo --non-interactive "$@"
    fi
}

install_packages() {
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get --yes --quiet
        --option DPkg::Lock::Timeout=600)
    # One source that cannot be reached need not be the one that has the packages.
    as_root "${apt[@]}" update || true
    as_root "${apt[@]}" install --no-install-recommends "$@"
}

# need_packages PACKAGE...: installs what is missing of them. Ends the script with status 2 when
# that cannot be done.
need_packages() {
    local missing wanted log=$root/build/packages.log
    # Elsewhere than on Debian the names differ, and configuring tells what is missing.
    command -v dpkg-query >/dev/null || return 0
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0

    mapfile -t wanted < <(missing_packages "$@" "${helpful_packages[@]}")
    if can_be_root; then
        say "Installing ${wanted[*]}"
        if install_packages "${wanted[@]}" >"$log" 2>&1; then
            return 0
        fi
        show_log "$log"
    fi
    say "These packages are needed and could not be installed: ${missing[*]}"
    exit 2
}

# The compiler cache goes into build/ where the home folder cannot take it.
choose_cache_folder() {
    local home_cache=${XDG_CACHE_HOME:-${HOME:-/nonexistent}/.cache}
    if [[ -z ${CCACHE_DIR:-} ]] &&
        ! { mkdir -p "$home_cache/ccache" 2>/dev/null && [[ -w $home_cache/ccache ]]; }; then
        export CCACHE_DIR=$root/build/ccache
    fi
}

# configure PRESET: runs CMake where it has not run yet, where the presets or the compiler cache
# have changed, and where the folder of the sources was moved or copied. For all else the build
# itself runs it again.
configure() {
    local preset=$1 folder=$root/build/$1 launcher settings
    launcher=$(command -v ccache || true)
    settings="$launcher $(cksum <"$root/CMakePresets.json")"
    if [[ -f $folder/CMakeCache.txt ]] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
    fi
    if [[ -f $folder/build.ninja && -f $folder/settings && $(<"$folder/settings") == "$settings" ]]
    then
        return 0
    fi
    announce_build
    (cd "$root" && cmake --preset "$preset" "-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher" 2>&1) ||
        return
    printf '%s\n' "$settings" >"$folder/settings"
}

# Passes the output of the build on, and says that there is something to build as soon as it shows.
watch_build() {
    local line
    while IFS= read -r line; do
        if [[ $line == \[+([0-9])/* && $line != *"Re-checking globbed"* ]]; then
            announce_build
        fi
        printf '%s\n' "$line"
    done
}

# build PRESET TARGET: configures where needed and builds, with the log in build/PRESET.log. Two
# at a time would spoil each other's files, so the second waits.
build() {
    local preset=$1 target=$2 log=$root/build/$1.log lock status=0
    choose_cache_folder
    exec {lock}>"$root/build/$preset.lock"
    flock "$lock"
    {
        configure "$preset" &&
            NINJA_STATUS='[%f/%t] ' ninja -C "$root/build/$preset" -j "$jobs" "$target" 2>&1 |
            watch_build
    } >"$log" || status=$?
    exec {lock}>&-
    if ((status)); then
        show_log "$log"
    fi
    return "$status"
}
