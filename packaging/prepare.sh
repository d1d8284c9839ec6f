# shellcheck shell=bash
# Copyright (c) 2026 The Korvex ISO Editor developers
# SPDX-License-Identifier: MIT

# What run and test have in common: they source this file in the project's folder. It installs what
# is missing and builds. It has to get along with the bash 3.2 of macOS.

say()
{
    echo "== $*"
}

fail()
{
    echo "== $*" >&2
    exit 1
}

# Runs a command silently and shows what it wrote only when it fails.
quietly()
{
    local output
    if output=$("$@" 2>&1); then
        return 0
    fi
    printf '%s\n' "$output" >&2
    return 1
}

as_root()
{
    if [ "$EUID" -eq 0 ]; then
        "$@"
    else
        sudo -- "$@"
    fi
}

# missing_packages <lane>...: the packages of debian-packages.txt for these that are not installed,
# one per line.
missing_packages()
{
    local lane package
    while read -r lane package _; do
        case " $* " in
            *" ${lane:-#} "*) ;;
            *) continue ;;
        esac
        case $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null) in
            ?i*) ;;
            *) echo "$package" ;;
        esac
    done <packaging/debian-packages.txt
}

# A package index that cannot be renewed is no reason to stop: an older one may still do, and where
# it does not, the installation says so.
install_packages()
{
    quietly as_root apt-get -qq update || say "The package index could not be renewed."
    quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends \
        -o DPkg::Lock::Timeout=300 install "$@"
}

# install_debian <lane>...
install_debian()
{
    local missing command
    missing=$(missing_packages "$@" | tr '\n' ' ')
    missing=${missing% }
    if [ -z "$missing" ]; then
        return 0
    fi
    command="apt-get update && apt-get install --no-install-recommends $missing"
    if [ "$EUID" -ne 0 ] && ! command -v sudo >/dev/null; then
        fail "Only root can install what is missing, and there is no sudo. As root: $command"
    fi
    # shellcheck disable=SC2086 # one word per package
    set -- $missing
    say "Installing $# packages (this can take some minutes): $missing"
    install_packages "$@" || fail "The installation failed. As root: $command"
}

# Homebrew asks to be run by its owner and takes long, so what is missing is only named.
check_macos()
{
    local pair missing=''
    for pair in cmake:cmake ninja:ninja rsvg-convert:librsvg 7zz:sevenzip mkisofs:cdrtools \
        wimlib-imagex:wimlib; do
        command -v "${pair%%:*}" >/dev/null || missing="$missing ${pair#*:}"
    done
    command -v brew >/dev/null || fail "Install Homebrew first (https://brew.sh)."
    brew --prefix --installed qt@5 >/dev/null 2>&1 || missing="$missing qt@5"
    xcode-select -p >/dev/null 2>&1 || fail "Install the compiler first: xcode-select --install"
    [ -z "$missing" ] || fail "Some tools are missing. Install them: brew install$missing"
    CMAKE_PREFIX_PATH=$(brew --prefix qt@5)
    export CMAKE_PREFIX_PATH
}

# Called by sudo, the build runs as the user who owns the project, so that the user can go on
# without it. Starts the calling script again and does not return then.
become_owner()
{
    local owner_id owner home
    if [ "$EUID" -ne 0 ] || [ -z "${SUDO_UID:-}" ]; then
        return 0
    fi
    owner_id=$(stat -c %u .)
    owner=$(getent passwd "$owner_id" | cut -d: -f1)
    home=$(getent passwd "$owner_id" | cut -d: -f6)
    if [ "$owner_id" -eq 0 ] || [ -z "$owner" ]; then
        return 0
    fi
    # An earlier call as root may have left files there.
    if [ -e build ]; then
        chown -hR "$owner:" build
    fi
    unset SUDO_UID SUDO_GID SUDO_USER SUDO_COMMAND
    exec runuser -u "$owner" -- env HOME="$home" USER="$owner" LOGNAME="$owner" "$@"
}

# prepare <lanes> <script> <arguments>...: makes the machine ready to build, with the packages of
# these lanes of debian-packages.txt. The script and its arguments are what is started again when the
# user has to change.
prepare()
{
    local lanes=$1
    shift
    if [ "$(uname -s)" = Darwin ]; then
        check_macos
        return
    fi
    if command -v dpkg-query >/dev/null; then
        # shellcheck disable=SC2086 # one word per lane
        install_debian $lanes
    else
        say "This is no Debian system: packages are not checked, see packaging/debian-packages.txt."
    fi
    # A bare machine has a plain ASCII locale, in which Qt cannot name most of the world's files.
    if [ "$(locale charmap 2>/dev/null)" != UTF-8 ]; then
        export LC_ALL=C.UTF-8
    fi
    become_owner "$@"
}

processors()
{
    getconf _NPROCESSORS_ONLN
}

# configure <cmake options>...
configure()
{
    if [ -e build ] && [ ! -w build ]; then
        fail "You may not write to $PWD/build. Delete that folder as the user who made it."
    fi
    say "Configuring the build"
    quietly cmake -S . -B build -G Ninja "$@" || fail "The build could not be configured."
}

# build <cmake --build options>...
build()
{
    say "Building (the first time takes some minutes)"
    cmake --build build --parallel "$(processors)" "$@" || fail "The build failed."
}
