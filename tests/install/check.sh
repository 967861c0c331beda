#!/usr/bin/env bash
# check.sh BUILD SCRATCH: installs BUILD below SCRATCH and builds and runs programs against it.
set -euo pipefail
build=$1
scratch=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
prefix=$scratch/prefix
rm -rf "$scratch"
mkdir -p "$scratch"

cmake --install "$build" --prefix "$prefix" >/dev/null
# The list holds for every build type, with and without the example program.
(cd "$prefix" && find . -not -type d) |
  sed 's,^\./,,; s,Targets-.*,Targets-CONFIG.cmake,; /^bin\/veks-wav$/d' | LC_ALL=C sort >"$scratch/files.txt"
diff -u "$here/installed_files.txt" "$scratch/files.txt"

expect() { # PROGRAM LIBRARY: what the program prints, and the library that it runs on
  local printed
  printed=$(LD_LIBRARY_PATH=$prefix/lib "$1")
  echo "$1: ${printed//$'\n'/, }"
  [[ $printed == "1 0 1 0 on "*"from $2" ]]
}

echo "== C, pkg-config"
export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
read -ra flags <<<"${CFLAGS:-} $(pkg-config --cflags veks)"
read -ra libs <<<"$(pkg-config --libs veks)"
"$CC" -std=c99 -pedantic -Wall -Werror "${flags[@]}" "$here/c/consumer.c" "${libs[@]}" -o "$scratch/shared"
expect "$scratch/shared" libveks.so.4
"$CC" "${flags[@]}" "$here/c/consumer.c" "$prefix/lib/libveks.a" -o "$scratch/static"
expect "$scratch/static" libveks.a

echo "== C++, find_package"
cmake -S "$here/cpp" -B "$scratch/cpp" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$scratch/cpp" >/dev/null
expect "$scratch/cpp/consumer" libveks.so.4
expect "$scratch/cpp/consumer_static" libveks.a

echo "== C, add_subdirectory"
# The library is compiled once more: as fast as it goes.
cmake -S "$here/subdirectory" -B "$scratch/subdirectory" -DVEKS_SOURCE_DIR="$here/../.." \
  -DCMAKE_BUILD_TYPE=Debug -DVEKS_ENABLE_AVX512=OFF >/dev/null
cmake --build "$scratch/subdirectory" --target consumer --parallel >/dev/null
expect "$scratch/subdirectory/consumer" libveks.so.4
