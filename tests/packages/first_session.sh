#!/bin/sh
# Installs the packages and uses them as a newcomer would: as root in a bare Debian tree that has them in /packages.
set -eu
examples=/usr/share/vqconfig/examples runtime=/usr/share/vqconfig/runtime
export LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive

wrong() {
  echo "$1"
  cat /packages/log
  exit 1
}

# get PACKAGE...: installs what is there or in Debian, and all that it depends on.
get() {
  apt-get install --yes "$@" > /packages/log 2>&1 || wrong "$* cannot be installed."
  echo "Installed: $*"
}

# works [COMMAND]: runs what was built, by way of the command.
works() { "$@" ./host > /packages/log 2>&1 && grep '^All checks passed' /packages/log || wrong "What was built fails."; }

# What a build server needs, with all that apt recommends.
generates_without_x() {
  get /packages/vqconfig_*.deb
  dpkg-query --show --showformat '${Package}\n' > /packages/log
  ! grep -E '^(libx(11|t|m|cb)|libice|libsm[0-9]|x11-|xserver)' /packages/log || wrong "There are libraries of X."
  for file in bash-completion/completions/vqc fish/vendor_completions.d/vqc.fish zsh/vendor-completions/_vqc \
    man/man1/vqconfig.1.gz man/man1/vqc.1.gz man/man5/vqc.5.gz man/man7/vqc-findings.7.gz; do
    [ -s /usr/share/$file ] || wrong "/usr/share/$file is not there."
  done
  printf "VQconfig\nfamily 'Dials' {}\n" > dial.vqc
  vqc check dial.vqc
  vqconfig -cCs dial.vqc
  rm dial.vqc dial_config.c dial_code.c dial_stubs.c
}

# With pkg-config.
first_link() {
  get --no-install-recommends /packages/vqconfig-dev_*.deb gcc libc6-dev make pkg-config
  find $examples/ -name '*.vqc' -exec vqc check --werror {} + > /packages/log || wrong "Examples have findings."
  cp -R $examples/Athena.vqc $examples/icons .
  vqconfig -cCs Athena.vqc
  cc -o host Athena_*.c $runtime/*.c -I. $(pkg-config --cflags --libs vqconfig xaw7 xmu) -lm > /packages/log 2>&1 ||
    wrong "What is generated cannot be compiled with pkg-config."
  works
  rm Athena* host
}

# With the include file for make.
first_makefile() {
  cp $examples/dial/* .
  cat > Makefile <<'END_OF_MAKEFILE'
include vqconfig.mk

CFLAGS += -I. $(shell pkg-config --cflags vqconfig)
LDLIBS += $(shell pkg-config --libs xaw7 xmu xt x11) -lm

host: Dial.o Dial_config.o Dial_code.o Dial_stubs.o $(wildcard /usr/share/vqconfig/runtime/*.c)
	$(CC) $(CFLAGS) -o $@ $^ $(LDLIBS)
END_OF_MAKEFILE
  make > /packages/log 2>&1 || wrong "What is described cannot be built with make."
  works
}

# On a display, with the widgets of what was built too.
edits() {
  get --no-install-recommends /packages/vqconfig-editor_*.deb mwm x11-utils xdotool xvfb
  works bash /packages/on_display
  timeout 120 bash /packages/on_display sh /packages/editor.sh > /packages/log 2>&1 ||
    wrong "The editor cannot be used."
  echo "The editor has been opened, and its help."
}

mkdir /packages/work
cd /packages/work
generates_without_x
first_link
first_makefile
edits
