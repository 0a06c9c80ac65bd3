# Sourced by scripts that try something on a bare Debian 12: a folder with nothing but apt in it,
# which commands see as their whole system. Needs root. Sources lib.sh.
. "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

[ "$(id -u)" -eq 0 ] || { echo "$0: must run as root" >&2; exit 1; }

# The mounts below belong to this process and its children, and go with them.
if [ -z "${KELIFC_PRIVATE_MOUNTS:-}" ]; then
  KELIFC_PRIVATE_MOUNTS=1 exec unshare --mount "$root/scripts/$(basename "$0")" "$@"
fi

# make_bare_root: makes the system in the folder that the variable `bare_root` then names. The end of
# the script removes it. Packages come from where this machine has them from.
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

# in_bare_root COMMAND...: runs it in the bare system, without this machine's environment.
in_bare_root() {
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive chroot "$bare_root" "$@" </dev/null
}
