#!/bin/bash
# Compares what the Debian packages say with what the project says: its version, and what it is built with.
# Usage: texts.sh CHECKOUT VERSION
set -eu
cd "$1"

[ "$(dpkg-parsechangelog --show-field Version)" = "$2" ] || { echo "The packages are not of version $2."; exit 1; }

# Debian takes build-essential for granted, and no project but a package needs debhelper-compat.
diff <(sed -n '/^# build$/,/^$/p' packages.txt | grep -v -e '^#' -e '^$' -e build-essential) \
  <(sed -n '/^Build-Depends:/,/^$/s/^ \(.*\),$/\1/p' debian/control | grep -v debhelper-compat)
