#!/bin/sh
# Runs vqc generate in the source folder, for a build in another folder.
# Usage: vqconfig.sh VQC SOURCE STAMP CONFIG CODE DEPFILE DOCUMENT [OPTIONS...]
set -eu
vqc=$1 source=$2 stamp=$3 config=$4 code=$5 depfile=$6 build=$PWD
shift 6

(cd "$source" && "$vqc" generate --config "$build/$config" --code "$build/$code" --depfile "$build/$depfile" "$@")

# Written as vqc sees it, from the source folder; ninja reads it from the build folder.
prefix=$(printf '%s/' "$source" | sed 's/[ #:]/\\&/g; s/\$/$$/g; s/[&|\\]/\\&/g')
sed -i "1s|.*|$stamp: \\\\|; 2,\$s|^\( *\)\([^ /]\)|\1$prefix\2|" "$depfile"

# Files that would not change keep their time. The stamp tells when they were last found right.
touch "$stamp"
