#!/bin/sh
# Lets Meson build the example project with what is installed.
# Usage: meson.sh VQC CHECKOUT FOLDER BUILD_FOLDER
set -eu
vqc=$1 checkout=$2 source="$3/the source" generated=$3/build program=$3/build/dial built_here=$4
. "$(dirname "$0")/story.sh"

build() { ninja -C "$generated"; }
clean() { ninja -C "$generated" clean; }

# A header that appears is noticed when the document is next read.
touch_document() { touch "$source/dial.vqc"; }

# Meson looks whether there are stubs when it sets the project up.
set_up() { PATH=$folder:$PATH PKG_CONFIG_PATH=$folder/usr/share/pkgconfig meson setup "$@" "$generated" "$source"; }

begin
cmake --install "$built_here" --component batch --prefix "$folder/usr" > "$folder/log"
cp "$checkout"/integration/meson/* "$source"
set_up > "$folder/log" 2>&1 || wrong "The project cannot be set up."
live touch_document
stubs_are_lost set_up --reconfigure
file_is_lost
