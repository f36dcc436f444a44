#!/bin/sh
# sandbox.sh PROJECT FOLDER PROGRAM...: runs a program that may do anything, as root too. All it can write to is the
# folder, which is its /tmp, and a /dev of its own; it has no network and sees no other process, and whatever it starts
# ends with it. Wants root.
set -e
if [ "$1" != inside ]; then
  exec unshare --mount --pid --net --ipc --fork --kill-child sh "$0" inside "$@"
fi
project=$2
folder=$3
shift 3
cd "$project"

# What cannot be made read-only is taken away.
findmnt -ln -o TARGET | while IFS= read -r place; do
  mount -o remount,bind,ro "$place" 2>/dev/null || umount -l "$place"
done
mount -t proc -o ro proc /proc
# A folder on the disk, for tests of writers that are interrupted want one that is not too quick.
mount --bind "$folder" /tmp
mount -o remount,bind,rw /tmp
# The project may stand in the /tmp that is hidden now.
case $project in
/tmp/*)
  mkdir -p "$project"
  mount -c --bind . "$project"
  ;;
esac
mount -t tmpfs -o size=1m,mode=755 tmpfs /dev
mknod -m 666 /dev/null c 1 3
mknod -m 666 /dev/zero c 1 5
mknod -m 666 /dev/full c 1 7
mknod -m 666 /dev/random c 1 8
mknod -m 666 /dev/urandom c 1 9
ln -s /proc/self/fd /dev/fd
cd /tmp
"$@" # as a child, for signals of its own do not end the first process
