#!/bin/sh
# Opens the installed example in the editor, asks for help, and leaves. Needs a display with a window manager.
set -eu

# reach TITLE [KEY]: waits until a window has the focus, for up to half a minute, and presses the key until then.
reach() {
  for _ in $(seq 30); do
    [ $# -eq 1 ] || xdotool key "$2"
    sleep 1
    ! xdotool getwindowfocus getwindowname 2>&1 | grep "$1" || return 0
  done
  echo "There is no window '$1', but these:"
  xwininfo -root -tree | grep '("'
  exit 1
}

cd /usr/share/vqconfig/examples
vqconfig Athena.vqc &
editor=$!
reach '^vqconfig: Athena.vqc$'
reach '^Families$' F1
reach '^vqconfig: Athena.vqc$' Escape
xdotool key ctrl+q
wait "$editor"
