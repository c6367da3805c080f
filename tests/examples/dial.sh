#!/bin/sh
# Does what a user would with the whole example: generates, compiles and runs it. What the guide quotes from it must be
# there, line by line.
# Usage: dial.sh VQCONFIG EXAMPLES FOLDER GUIDE
set -eu
vqconfig=$1 examples=$2 out=$3 guide=$4
rm -rf "$out"
mkdir -p "$out"

if ! make -C "$examples/dial" run VQCONFIG="$vqconfig" OUT="$out" > "$out/log" 2>&1; then
  cat "$out/log"
  exit 1
fi
if grep 'warning:' "$out/log"; then exit 1; fi
grep -q '^All checks passed (tables and widgets)$' "$out/log"

# The stub as it is generated has the head that the completed one has.
"$vqconfig" -s "$out/new_stubs.c" "$examples/dial/Dial.vqc"
sed '/END of vqconfig Prelude/,/FIXME/!d; /FIXME/d' "$out/new_stubs.c" > "$out/head"
sed '/END of vqconfig Prelude/,/^{/!d' "$examples/dial/Dial_stubs.c" | diff "$out/head" -

cat "$examples"/dial/* "$examples"/runtime/widgets.c "$out"/*.c "$out/log" > "$out/everything"
echo 'make -C examples/dial run VQCONFIG=$PWD/build/release/vqconfig OUT=/tmp/dial' >> "$out/everything"
sed -n '/^## A whole example/,/^## What becomes/{s/^    [ 	]*//p}' "$guide" > "$out/quoted"
[ "$(wc -l < "$out/quoted")" -gt 30 ]
while IFS= read -r line; do
  grep -qF -- "$line" "$out/everything" || { echo "The guide quotes what is not there: $line"; exit 1; }
done < "$out/quoted"
