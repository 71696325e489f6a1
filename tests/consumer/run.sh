#!/usr/bin/env bash
# Installs the library into a temporary prefix, then builds and runs an outside
# program against it twice: with pkg-config and with find_package(Vantrel).
set -euo pipefail
build_dir=$1
source_dir=$2
work=$3

rm -rf "$work"
mkdir -p "$work"
prefix="$work/prefix"
cmake --install "$build_dir" --prefix "$prefix" > "$work/install.log"

pc_file=$(find "$prefix" -name vantrel.pc | head -n 1)
[ -n "$pc_file" ] || { echo "vantrel.pc was not installed"; exit 1; }
config=$(find "$prefix" -name VantrelConfig.cmake | head -n 1)
[ -n "$config" ] || { echo "VantrelConfig.cmake was not installed"; exit 1; }
libdir=$(dirname "$(find "$prefix" -name 'libvantrel.so' | head -n 1)")

echo "== pkg-config"
export PKG_CONFIG_PATH="$(dirname "$pc_file")"
# shellcheck disable=SC2046
g++ -std=c++17 -Wall -Wextra -Werror "$source_dir/consumer.cpp" -o "$work/consumer-pkgconfig" \
    $(pkg-config --cflags --libs vantrel)
LD_LIBRARY_PATH="$libdir" "$work/consumer-pkgconfig"

echo "== find_package"
cmake -S "$source_dir/cmake-project" -B "$work/cmake-build" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_BUILD_TYPE=Release > "$work/configure.log"
cmake --build "$work/cmake-build" > "$work/build.log"
"$work/cmake-build/consumer"
