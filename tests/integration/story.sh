# The life of a small project, in any build system. A test that reads this sets
#
#   source     the project's folder, which begin() makes
#   generated  the folder of the config and code files
#   program    what is built
#   vqc        the program to try, in place of which the build gets $traced
#
# and defines build() and clean(). Then it calls begin(), and live().

folder=$(dirname "$source")
traced=$folder/vqc

wrong() {
  echo "$1" >&2
  cat "$folder/log" >&2
  exit 1
}

# A project with a widget class and a small run-time. Its headers are not where vqc runs. $traced notes each run of vqc.
begin() {
  rm -rf "$folder"
  mkdir -p "$source/widgets" "$source/runtime"
  cp "$checkout"/examples/dial/Dial.[ch] "$source/widgets"
  cp "$checkout"/examples/runtime/*.[ch] "$source/runtime"
  echo '/* No limits. */' > "$source/widgets/Limits.h"
  cat > "$source/dial.vqc" <<'END'
VQconfig
widget 'dialWidgetClass' {
	include_filename='Dial.h'
	realise='create_dial'
	resource_definitions='DialNvalue', , 'settings', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT;
}
family 'Dials' {
	widget='dialWidgetClass'
	cheader='Dial.h'
	cheader='Limits.h'
}
END
  printf '#!/bin/sh\necho run >> "%s"\nexec "%s" "$@"\n' "$folder/runs" "$vqc" > "$traced"
  chmod +x "$traced"
  : > "$folder/log"
}

# When each file of the build was written, under the names that all build systems agree on.
dates() {
  find "$source" "$generated" -type f \
    \( -name '*.o' -o -name 'dial_co*.c' -o -path "$source/dial_stubs.c" -o -path "$program" \) -printf '%T@ %p\n' |
    sed 's|/.*dial_|dial_|; s|/.*/||; s|\.c\.o$|.o|' | sort -u
}

# What a build writes, in one line, after how often vqc ran.
built() {
  : > "$folder/runs"
  dates > "$folder/before"
  build > "$folder/log" 2>&1 || wrong "The build failed."
  dates | comm -13 "$folder/before" - | cut -d ' ' -f 2 | sort -u > "$folder/written"
  echo "$(wc -l < "$folder/runs"): $(tr '\n' ' ' < "$folder/written")" | sed 's/ $//'
}

# The next build does nothing, and does not look at the project's files again (as CMake says when it does).
expect_nothing() {
  found=$(built)
  [ "$found" = "0:" ] || wrong "$1: the build after it wrote '$found'."
  ! grep -q 'Configuring done' "$folder/log" || wrong "$1: the build after it configures again."
}

# expect WORDS 'RUNS: FILES...': how often the next build runs vqc, and what it writes. The one after it does nothing.
expect() {
  found=$(built)
  [ "$found" = "$2" ] || wrong "$1: expected '$2', found '$found'."
  expect_nothing "$1"
  echo "$1: $2"
}

# edit SCRIPT FILE: changes a file of the project.
edit() { sed -i "$1" "$source/$2"; }

grows_up() {
  built > /dev/null
  for kind in config code stubs; do
    grep -qx "dial_$kind.o" "$folder/written" || wrong "The first build did not compile dial_$kind.c."
  done
  DISPLAY='' "$program" | grep -q '^All checks passed' || wrong "What was built does not work."
  expect_nothing 'The first build'
}

document_changes() {
  touch "$source/dial.vqc"
  expect 'A document is touched' '1:'
  edit "s/'settings'/'misc'/" dial.vqc
  expect 'A resource moves' '1: dial dial_config.c dial_config.o'
  edit "s/^	realise=.*/&\n	can_add_child='refuse_child'/" dial.vqc
  expect 'A procedure is new' '1: dial dial_code.c dial_code.o dial_stubs.c dial_stubs.o'
}

headers_change() {
  cp "$source/widgets/Dial.h" "$source"
  [ $# -eq 0 ] || "$@"
  expect 'A header appears' '1: dial dial_config.c dial_config.o'
  [ "$(sed -n '/Dial.h/=' "$generated/dial_config.c")" -gt "$(sed -n '/Limits.h/=' "$generated/dial_config.c")" ]
  rm "$source/Dial.h"
  expect 'A header disappears' '1: dial dial_config.c dial_config.o'
}

stubs_change() {
  edit '$a /* This is mine. */' dial_stubs.c
  expect 'A stub is edited' '0: dial dial_stubs.o'
}

document_breaks() {
  edit 's/^	realise=/	realize=/' dial.vqc
  ! build > "$folder/log" 2>&1 || wrong "A broken document does not stop the build."
  grep -q 'dial\.vqc:4:2: error: ' "$folder/log" || wrong "The build does not show the error."
  ! build > "$folder/log" 2>&1 || wrong "A broken document stops the first build only."
  edit 's/^	realize=/	realise=/' dial.vqc
  expect 'A document breaks and is mended' '1:'
}

file_is_lost() {
  rm "$generated/dial_code.c"
  expect 'A file is lost' '1: dial dial_code.c dial_code.o'
}

all_is_cleaned() {
  clean > "$folder/log" 2>&1 || wrong "What was generated cannot be removed."
  for file in "$generated/dial_config.c" "$generated/dial_code.c" "$program"; do
    [ ! -e "$file" ] || wrong "$file is not removed."
  done
  grep -q 'This is mine' "$source/dial_stubs.c" || wrong "The stubs are not kept."
  built > /dev/null
  DISPLAY='' "$program" | grep -q '^All checks passed' || wrong "What was built again does not work."
  grep -q 'This is mine' "$source/dial_stubs.c" || wrong "The stubs are not kept when all is built again."
  expect_nothing 'A clean'
}

# COMMAND...: what a person does then, if the build asks for it.
stubs_are_lost() {
  rm "$source/dial_stubs.c"
  [ $# -eq 0 ] || "$@" > "$folder/log" 2>&1
  expect 'The stubs are lost' '1: dial dial_stubs.c dial_stubs.o'
}

# COMMAND...: what a person does so that the build notices a header that has appeared, if that is needed.
live() {
  grows_up
  document_changes
  headers_change "$@"
  stubs_change
  document_breaks
  all_is_cleaned
}
