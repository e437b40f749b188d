# A bare Debian 12 to try things in: what debootstrap makes, and git. Sourced, as root, by the scripts
# that use it.
# shellcheck shell=bash
#
# The root is made once, from the package source that this machine's own apt uses, and kept in the
# cache folder of the user; every use works on a layer above it that is thrown away afterwards. What
# apt has fetched is kept beside it. Nothing else of this machine is seen inside but its kernel, its
# network and its resolver.

bare_cache=${XDG_CACHE_HOME:-$HOME/.cache}/tarvix/bare-root
bare_release=bookworm

# Runs the calling script again with mounts and processes of its own. The kernel removes both when
# the script ends, however it ends.
own_namespaces() {
    [ -z "${TARVIX_OWN_NAMESPACES:-}" ] || return 0
    [ "$(id -u)" -eq 0 ] || fail "only root can make a bare root."
    TARVIX_OWN_NAMESPACES=yes exec unshare --mount --pid --fork --kill-child --mount-proc -- "$0" "$@"
}

# Makes the bare root where there is none yet.
make_bare_root() {
    local mirror building
    mkdir -p "$bare_cache/packages/partial"
    exec 8>"$bare_cache/lock"
    flock 8
    if [ ! -d "$bare_cache/root" ]; then
        mirror=$(debian_sources | awk -v release="$bare_release" '$3 == release { print $2; exit }')
        [ -n "$mirror" ] || fail "this machine's apt has no package source for Debian $bare_release."
        building=$(mktemp -d "$bare_cache/building.XXXXXX")
        say "Making a bare Debian root (once)"
        debootstrap --variant=minbase --include=ca-certificates,git "$bare_release" "$building" \
            "$mirror" >"$bare_cache/debootstrap.log" 2>&1 ||
            { tail -n 5 "$bare_cache/debootstrap.log" >&2; fail "debootstrap did not work."; }
        debian_sources >"$building/etc/apt/sources.list"
        # How this machine reaches its package source: proxies, retries, times.
        apt-config dump | grep '^Acquire::' | grep -vE '^Acquire::(IndexTargets|Changelogs|Languages)' \
            >"$building/etc/apt/apt.conf.d/90machine" || true
        if [ -d /etc/apt/auth.conf.d ]; then cp -a /etc/apt/auth.conf.d "$building/etc/apt/"; fi
        # The root lives for minutes: a power cut in between is no loss.
        echo force-unsafe-io >"$building/etc/dpkg/dpkg.cfg.d/unsafe-io"
        rm -f "$building"/var/cache/apt/archives/*.deb
        chmod 755 "$building"
        mv "$building" "$bare_cache/root"
    fi
    flock -u 8
}

# This machine's sources of Debian's packages, as lines of sources.list.
debian_sources() {
    # shellcheck disable=SC2016 # apt's own variables
    apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)|$(ORIGIN)' \
        'Created-By: Packages' | sed -n 's/|Debian$//p' | grep -F " $bare_release" | sort -u
}

# A fresh bare root at a folder: mount_bare_root FOLDER [SIZE], SIZE being that of its disk.
mount_bare_root() {
    local place=$1 device
    mkdir -p "$place"
    mount -t tmpfs -o "mode=755,size=${2:-12G}" tarvix "$place"
    mkdir "$place/changes" "$place/work" "$place/tree"
    mount -t overlay -o "lowerdir=$bare_cache/root,upperdir=$place/changes,workdir=$place/work" \
        tarvix "$place/tree"
    place=$place/tree
    mount -t proc proc "$place/proc"
    mount -t tmpfs -o mode=755 tarvix "$place/dev"
    for device in null:3 zero:5 full:7 random:8 urandom:9; do
        mknod -m 666 "$place/dev/${device%:*}" c 1 "${device#*:}"
    done
    mknod -m 666 "$place/dev/tty" c 5 0
    mkdir "$place/dev/pts" "$place/dev/shm"
    mount -t devpts -o newinstance,ptmxmode=0666,mode=620 devpts "$place/dev/pts"
    mount -t tmpfs -o mode=1777 tarvix "$place/dev/shm"
    ln -s pts/ptmx "$place/dev/ptmx"
    ln -s /proc/self/fd "$place/dev/fd"
    ln -s fd/0 "$place/dev/stdin"
    ln -s fd/1 "$place/dev/stdout"
    ln -s fd/2 "$place/dev/stderr"
    cp --remove-destination --dereference /etc/resolv.conf /etc/hosts "$place/etc/"
}

# Lets apt in a bare root keep what it fetches for the next one.
keep_packages() {
    mount --bind "$bare_cache/packages" "$1/tree/var/cache/apt/archives"
}

unmount_bare_root() {
    umount --recursive "$1"
    rmdir "$1"
}

# A clone of the checked-out commit as /home/tarvix, made by the root's own git.
clone_into() {
    git clone --quiet --bare --depth 1 "file://$(project_root)" "$1/tree/srv/tarvix.git"
    in_bare_root "$1" / git clone --quiet file:///srv/tarvix.git /home/tarvix
}

# in_bare_root PLACE FOLDER COMMAND...: runs a command there, with nothing of this machine's
# environment but how it reaches the network.
in_bare_root() {
    local place=$1 folder=$2 name settings=()
    shift 2
    for name in http_proxy https_proxy no_proxy DISPLAY; do
        [ -z "${!name:-}" ] || settings+=("$name=${!name}")
    done
    env -i "${settings[@]}" HOME=/root TERM=dumb \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        chroot "$place/tree" sh -c 'cd "$0" && exec "$@"' "$folder" "$@"
}
