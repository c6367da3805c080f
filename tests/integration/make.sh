#!/bin/sh
# Lets make build a project with vqconfig.mk: its own makefile has one line about descriptions.
# Usage: make.sh VQC CHECKOUT FOLDER
set -eu
vqc=$1 checkout=$2 source=$3/dial generated=$3/dial program=$3/dial/dial
. "$(dirname "$0")/story.sh"

build() { make -C "$source" -j 4 VQC="$traced"; }
clean() { make -C "$source" clean VQC="$traced"; }

begin
cat > "$source/Makefile" <<END
include $checkout/integration/vqconfig.mk

CFLAGS = -std=gnu17 -Iwidgets -Iruntime
LDLIBS = -lXaw -lXmu -lXt -lX11 -lm

dial: dial_config.o dial_code.o dial_stubs.o \$(patsubst %.c,%.o,\$(wildcard widgets/*.c runtime/*.c))
	\$(CC) -o \$@ \$^ \$(LDLIBS)

clean: vqconfig-clean
	rm -f dial *.o */*.o
END
live
stubs_are_lost
file_is_lost

# Options are heeded at once. Without stubs, none are made.
rm "$source/dial_stubs.c"
edit "s/^include/VQCFLAGS = --no-stubs\n&/; s/dial_stubs.o//" Makefile
edit "/create_dial/d; /refuse_child/d" dial.vqc
expect 'No stubs are wanted' '1: dial dial_code.c dial_code.o'
edit "s/^VQCFLAGS = .*/& --comments/" Makefile
expect 'Options change' '1: dial dial_code.c dial_code.o dial_config.c dial_config.o'
[ ! -e "$source/dial_stubs.c" ] || wrong "There are stubs, which were not wanted."
