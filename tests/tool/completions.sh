#!/bin/bash
# Asks the completion of bash for what a user would, and the others whether they can be read and know every option.
# Usage: completions.sh VQC FOLDER_OF_COMPLETIONS
set -eu
vqc=$1 completions=$2
PATH=$(dirname "$vqc"):$PATH
source "$completions/vqc.bash"

expect() { # LINE WORD...: the words that complete a line
  read -ra COMP_WORDS <<< "${1% }"
  [[ $1 == *' ' ]] && COMP_WORDS+=('')
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  _vqc
  shift
  [[ "${COMPREPLY[*]}" == "$*" ]] || { echo "expected '$*', got '${COMPREPLY[*]}'"; exit 1; }
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
touch dial.vqc notes.txt
expect 'vqc ch' check
expect 'vqc g' generate
expect 'vqc check --for' --format
expect 'vqc check --format s' sarif
expect 'vqc check --no unclosed_b' unclosed_block
expect 'vqc explain named_' named_twice
expect 'vqc generate --ver' --verbose-code --verify
expect 'vqc check d' dial.vqc
expect 'vqc help ex' explain

zsh -n "$completions/_vqc"
fish --no-execute "$completions/vqc.fish"

# Every option that the help shows is in each of the three.
for command in check generate; do
  for option in $(vqc help $command | grep -o '^  .*--[a-z-]*' | grep -o -- '--[a-z-]*'); do
    [ "$option" = --color ] && continue
    [ "$option" = --help ] && continue
    for file in vqc.bash _vqc; do
      grep -q -e "$option" "$completions/$file" || { echo "$file does not know $option"; exit 1; }
    done
    grep -q -e "-l ${option#--} " "$completions/vqc.fish" || { echo "vqc.fish does not know $option"; exit 1; }
  done
done
