#!/bin/sh
# Types what the guide says about the run-time to begin with, in a project beside an installation: a shell session, and
# a CMakeLists.txt.
# Usage: first_link.sh CHECKOUT FOLDER BUILD_FOLDER
set -eu
checkout=$1 folder=$2 built_here=$3
rm -rf "$folder"
mkdir -p "$folder/dial"
cmake --install "$built_here" --component batch --prefix "$folder/usr" > "$folder/log"
PATH=$folder/usr/bin:$PATH PKG_CONFIG_PATH=$folder/usr/share/pkgconfig
export PATH PKG_CONFIG_PATH

cp "$checkout"/examples/dial/Dial.* "$folder/dial"
mv "$folder/dial/Dial.vqc" "$folder/dial/dial.vqc"
sed -n '/^## What to link first/,/^## /{s/^    //p}' "$checkout/docs/in-a-build.md" > "$folder/quoted"
sed '/^cmake_/,$d' "$folder/quoted" > "$folder/session"
sed -n '/^cmake_/,$p' "$folder/quoted" > "$folder/dial/CMakeLists.txt"

cd "$folder/dial"
sh -eu ../session > "$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
grep '^All checks passed' "$folder/log"
! grep 'warning:' "$folder/log" || exit 1

rm dial dial_*.c
with_cmake() { cmake -B ../build "-DCMAKE_PREFIX_PATH=$folder/usr" && cmake --build ../build && ../build/dial; }
with_cmake > "$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
grep '^All checks passed' "$folder/log"

# The include file for make is where the package says it is.
[ -f "$(pkg-config --variable=makefile vqconfig)" ]
