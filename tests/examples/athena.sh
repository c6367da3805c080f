#!/bin/sh
# Does what a user would: generates from the Athena description, compiles with warnings, links and runs the result.
# Usage: athena.sh VQCONFIG EXAMPLES FOLDER
set -eu
vqconfig=$1 examples=$2 out=$3
rm -rf "$out"
mkdir -p "$out"

if ! make -C "$examples/runtime" run VQCONFIG="$vqconfig" OUT="$out" > "$out/log" 2>&1; then
  cat "$out/log"
  exit 1
fi

# A stub does not use its parameters yet, and a family without headers or widgets does not use their tables.
unexpected=$(grep 'warning:' "$out/log" |
  grep -vE 'Athena_stubs\.c.*\[-Wunused-parameter\]|Athena_config\.c.*_(headers|widgets).*\[-Wunused(-const)?-variable\]' ||
  true)
if [ -n "$unexpected" ]; then
  echo "Warnings that should not be there:"
  echo "$unexpected"
  exit 1
fi

sed -n '/^Tables/,$p' "$out/log"
grep -q '^All checks passed (tables and widgets)$' "$out/log"
