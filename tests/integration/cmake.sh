#!/bin/sh
# Lets CMake build a project with the installed package, whose CMakeLists.txt has two lines about descriptions.
# Usage: cmake.sh VQC CHECKOUT FOLDER BUILD_FOLDER GENERATOR
set -eu
vqc=$1 checkout=$2 source=$3/source generated=$3/build program=$3/build/dial built_here=$4 generator=$5
. "$(dirname "$0")/story.sh"

build() { cmake --build "$generated" --parallel 4; }
clean() { cmake --build "$generated" --target clean; }

begin
cmake --install "$built_here" --component batch --prefix "$folder/usr" > "$folder/log"
cat > "$source/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(dial C)
find_package(VQconfig 0.2 REQUIRED)
file(GLOB sources widgets/*.c runtime/*.c)
add_executable(dial ${sources})
target_include_directories(dial PRIVATE widgets runtime)
target_link_libraries(dial Xaw Xt X11 m)
vqconfig_generate(TARGET dial DOCUMENT dial.vqc STUBS dial_stubs.c FAMILIES Dials)
END
cmake -G "$generator" -S "$source" -B "$generated" "-DCMAKE_PREFIX_PATH=$folder/usr" "-DVQCONFIG_VQC=$traced" \
  > "$folder/log" 2>&1 || wrong "The project cannot be configured."
live
stubs_are_lost
[ "$generator" != Ninja ] || file_is_lost  # make does not know which files its rules leave beside the stamp

# Without stubs, none are made.
rm "$source/dial_stubs.c"
edit 's/ STUBS dial_stubs.c//' CMakeLists.txt
edit '/create_dial/d; /refuse_child/d' dial.vqc
build > "$folder/log" 2>&1 || wrong "The build without stubs failed."
DISPLAY='' "$program" | grep -q '^All checks passed' || wrong "What was built without stubs does not work."
[ ! -e "$source/dial_stubs.c" ] || wrong "There are stubs, which were not wanted."

# What two targets want is made in a library.
echo 'vqconfig_generate(TARGET dial DOCUMENT dial.vqc)' >> "$source/CMakeLists.txt"
! build > "$folder/log" 2>&1 || wrong "The same files are made twice."
grep -q 'are made for dial in this folder already' "$folder/log" || wrong "The build does not say what is made twice."
edit '$d' CMakeLists.txt

# Another version is not taken for ours.
edit 's/VQconfig 0.2/VQconfig 0.1/' CMakeLists.txt
! build > "$folder/log" 2>&1 || wrong "A package of another version is taken."
grep -q 'compatible with requested version' "$folder/log" || wrong "The build does not say what is wrong."
