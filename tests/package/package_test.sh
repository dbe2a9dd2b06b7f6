#!/usr/bin/env bash
# Installs the built project into a fresh folder and builds a host against it, once with find_package and once with
# pkg-config; each host must find the update of a feed.
# Usage: package_test.sh BUILD_FOLDER CXX_COMPILER CXX_FLAGS
set -euo pipefail

build=$1
compiler=$2
flags=$3
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
# A moved installation must work as well: nothing in it may name the place where it was made.
mv "$work/first" "$work/installed"
library=$(dirname "$(find "$work/installed" -name 'libPelnarUpdateChecker.so.*' | head -n 1)")

[ -z "$(find "$work/installed" -name '*_p.h')" ] || { echo "private headers were installed"; exit 1; }
readelf -d "$library/libPelnarUpdateChecker.so" | grep -q 'SONAME.*libPelnarUpdateChecker\.so\.1\]'

umask 022 # Foundation passes over what others may change
echo "GNUSTEP_USER_DEFAULTS_DIR=$work/Defaults" > "$work/GNUstep.conf"
export GNUSTEP_CONFIG_FILE="$work/GNUstep.conf" QT_QPA_PLATFORM=offscreen
export XDG_CONFIG_HOME="$work/config" XDG_STATE_HOME="$work/state" XDG_CACHE_HOME="$work/cache"

cmake -S "$here/host" -B "$work/by_cmake" -G Ninja -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" \
    -DCMAKE_PREFIX_PATH="$work/installed" >/dev/null
cmake --build "$work/by_cmake" >/dev/null
found=$("$work/by_cmake/tiny_host" "$here/feed.xml")
[ "$found" = "found 1.1 for 1.0" ] || { echo "find_package: the host said '$found'"; exit 1; }

export PKG_CONFIG_PATH="$library/pkgconfig"
# shellcheck disable=SC2046,SC2086
"$compiler" -std=c++17 -fPIC $flags "$here/host/main.cpp" -o "$work/by_pkg_config" \
    $(pkg-config --cflags --libs PelnarUpdateChecker) "-Wl,-rpath,$library"
found=$("$work/by_pkg_config" "$here/feed.xml")
[ "$found" = "found 1.1 for 1.0" ] || { echo "pkg-config: the host said '$found'"; exit 1; }

# What the library shows to the linker is its interface, in our namespaces, and nothing of its private sources.
shown=$(nm -D --defined-only -C "$library/libPelnarUpdateChecker.so" | grep -E 'Pelnar::(App::Session|Foundation|Settings|details)::' || true)
[ -z "$shown" ] || { echo "private symbols are exported:"; echo "$shown"; exit 1; }
echo "installed package: found by find_package and by pkg-config"
