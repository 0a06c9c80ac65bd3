# Functions for scripts that test something on a bare Debian 12: a folder that contains only a
# minimal system with apt, and that commands use as their root. Needs root. Sources lib.sh.
. "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

[ "$(id -u)" -eq 0 ] || { echo "$0: must run as root" >&2; exit 1; }

# The mounts below belong to this process and its children, and end with them.
if [ -z "${KELIFC_PRIVATE_MOUNTS:-}" ]; then
  KELIFC_PRIVATE_MOUNTS=1 exec unshare --mount "$root/scripts/$(basename "$0")" "$@"
fi

# make_bare_root: creates the system in a folder and stores its path in the variable `bare_root`.
# The folder is removed when the script ends. Packages come from the sources of this machine.
make_bare_root() {
  install_missing mmdebstrap
  bare_root=$(mktemp -d)
  trap remove_bare_root EXIT
  local sources=() file
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.{list,sources}; do
    [ ! -s "$file" ] || sources+=("$file")
  done
  mmdebstrap --quiet --variant=apt bookworm "$bare_root" "${sources[@]}"
  for file in apt.conf.d trusted.gpg.d keyrings auth.conf.d; do
    [ ! -d "/etc/apt/$file" ] || cp -a "/etc/apt/$file" "$bare_root/etc/apt/"
  done
  cp -L /etc/resolv.conf /etc/hosts "$bare_root/etc/"
  mount --bind /proc "$bare_root/proc"
  mount --rbind /dev "$bare_root/dev"
}

remove_bare_root() {
  umount "$bare_root/proc" || true
  umount --recursive --lazy "$bare_root/dev" || true
  rm -rf --one-file-system "$bare_root"
}

# in_bare_root COMMAND...: runs a command in the bare system, without this machine's environment.
in_bare_root() {
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive chroot "$bare_root" "$@" </dev/null
}
