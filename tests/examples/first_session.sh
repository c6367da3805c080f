#!/bin/sh
# Types the first session of the README, line by line, into a folder that looks like a checkout after "make run".
# Usage: first_session.sh VQCONFIG CHECKOUT FOLDER
set -eu
vqconfig=$1 checkout=$2 folder=$3
rm -rf "$folder"
mkdir -p "$folder/build"
ln -s "$(dirname "$vqconfig")" "$folder/build/release"
ln -s "$checkout/examples" "$folder/examples"

# All but the editor, which would stay.
sed -n '/^## A first session/,/^## Three traps/{s/^    //p}' "$checkout/README.md" |
  grep -vx 'vqconfig dial.vqc' > "$folder/session"
(cd "$folder" && sh -eu session) | tee "$folder/log"
grep -q '^All checks passed' "$folder/log"
