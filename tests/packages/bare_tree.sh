#!/bin/sh
# Makes a bare Debian tree, as the running system and from its sources, and has first_session.sh use the packages there.
# Says why where the system does not allow it. Usage: bare_tree.sh FOLDER_OF_PACKAGES
set -eu
packages=$1
here=$(dirname "$0")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

skip() {
  echo "Skipped: $1"
  exit 0
}

command -v mmdebstrap > /dev/null || skip "mmdebstrap is not installed."
[ "$(id -u)" -eq 0 ] || unshare --user --map-auto --map-root-user true 2> "$work/log" ||
  skip "making a tree needs root, or user namespaces with subordinate ids: $(cat "$work/log")"
apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' \
  > "$work/sources"
[ -s "$work/sources" ] || skip "apt knows no source of Debian's packages; apt-get update may help."

mkdir "$work/packages"
cp "$packages"/vqconfig*_[0-9]*.deb "$here/first_session.sh" "$here/editor.sh" "$here/../gui/on_display" "$work/packages"

# The first thing that is done in the tree is to say that there is one.
if ! mmdebstrap --variant=apt --format=null \
  --customize-hook='echo "The tree stands."' \
  --customize-hook='mkdir "$1/packages"' \
  --customize-hook="sync-in '$work/packages' /packages" \
  --customize-hook='chroot "$1" sh /packages/first_session.sh' \
  "$(. /etc/os-release && echo "$VERSION_CODENAME")" /dev/null - < "$work/sources" > "$work/log" 2>&1; then
  grep -q '^The tree stands' "$work/log" || skip "no bare Debian tree can be made here: $(grep -m 3 '^E: ' "$work/log")"
  cat "$work/log"
  exit 1
fi
sed '1,/^The tree stands/d; /^I: /d' "$work/log"
