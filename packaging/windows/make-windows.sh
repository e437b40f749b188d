#!/usr/bin/env bash
# Builds Tarvix for 64-bit Windows on Debian 12, what is missing installed first, and leaves in
# build/windows/:
#
#   Tarvix/                         a folder that runs as it is
#   tarvix-VERSION-windows.zip      the same, packed
#   tarvix-VERSION-setup.exe        the installer
#   tarvix-VERSION-source.zip       what the program is made from
#   qt-source/                      what its Qt is made from
#
# The last two belong to the others wherever those are handed on: see licences/README.txt in the
# folder. The same sources give the same bytes, whenever and wherever they are built. The first run
# builds Qt, too, which takes a quarter of an hour or longer (build-qt.sh says where it is kept).
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
# shellcheck source=packaging/scripts/common.sh
source "$here/../scripts/common.sh"
# shellcheck source=packaging/windows/common.sh
source "$here/common.sh"

root=$(project_root)
out=$root/build/windows
version=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' "$root/CMakeLists.txt")
copyright=$(sed -n '/^Copyright/p' "$root/LICENSE")
umask 022

# Times in archives: the version's, whatever the clock says and whether or not git is there.
source_date() {
    dpkg-parsechangelog -l "$root/packaging/debian/changelog" -STimestamp
}

# zip_folder ARCHIVE PARENT NAME...: packs files and folders of PARENT with names in one order and
# one time for all.
zip_folder() {
    local archive=$1 parent=$2
    shift 2
    rm -f "$archive"
    (
        cd "$parent"
        find "$@" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
        find "$@" -type f | LC_ALL=C sort | TZ=UTC zip -q -X -9 -@ "$archive"
    )
}

# The program's folder. Qt's licences go with it, as do those of what the compiler links in.
fill_folder() {
    local qt=$1 folder=$out/Tarvix licences
    rm -rf "$folder"
    cmake --install "$out/program" --prefix "$folder" >"$out/install.log" ||
        { cat "$out/install.log" >&2; fail "the program's folder could not be filled."; }
    licences=$folder/licences
    mkdir -p "$licences/qt"
    sed "s/@QT_VERSION@/$(basename "$qt")/" "$here/licences.txt" >"$licences/README.txt"
    cp "$qt"/LICENSES/* "$licences/qt/"
    cp /usr/share/doc/mingw-w64-common/copyright "$licences/mingw-w64.txt"
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$licences/gcc.txt"
    chmod -R u=rwX,go=rX "$folder"
}

# For the installer: what to put where, and what to take away again, deepest folders first.
write_lists() {
    local lists=$1 file folder last="."
    mkdir -p "$lists"
    : >"$lists/install.nsh"
    : >"$lists/uninstall.nsh"
    say "SetOutPath \"\$INSTDIR\"" >>"$lists/install.nsh"
    while IFS= read -r file; do
        folder=$(dirname "$file")
        if [ "$folder" != "$last" ]; then
            last=$folder
            if [ "$folder" = . ]; then folder=""; else folder="\\${folder//\//\\}"; fi
            say "SetOutPath \"\$INSTDIR$folder\"" >>"$lists/install.nsh"
        fi
        say "File \"$out/Tarvix/$file\"" >>"$lists/install.nsh"
        say "Delete \"\$INSTDIR\\${file//\//\\}\"" >>"$lists/uninstall.nsh"
    done < <(cd "$out/Tarvix" && find . -type f -printf '%P\n' | LC_ALL=C sort)
    while IFS= read -r folder; do
        say "RMDir \"\$INSTDIR\\${folder//\//\\}\"" >>"$lists/uninstall.nsh"
    done < <(cd "$out/Tarvix" && find . -mindepth 1 -type d -printf '%P\n' | LC_ALL=C sort -r)
}

make_installer() {
    local lists=$out/lists
    write_lists "$lists"
    makensis -V2 -NOCD -INPUTCHARSET UTF8 "-DVERSION=$version" "-DCOPYRIGHT=$copyright" \
        "-DFOLDER=$out/Tarvix" "-DLISTS=$lists" "-DHERE=$here" \
        "-DOUTPUT=$out/tarvix-$version-setup.exe" "$here/tarvix.nsi" >"$out/nsis.log" 2>&1 ||
        { cat "$out/nsis.log" >&2; fail "the installer could not be made."; }
}

# The project's files as they are here, without what git ignores; all of them where there is no git, as
# in what this very archive was unpacked to.
project_files() {
    if git -C "$root" rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        git -C "$root" ls-files -z --cached --others --exclude-standard
    else
        (cd "$root" && find . -path ./build -prune -o -type f -print0)
    fi
}

make_source_archive() {
    local copy=$out/tarvix-$version
    rm -rf "$copy"
    mkdir -p "$copy"
    project_files | tar -c -C "$root" --null -T - --ignore-failed-read 2>/dev/null | tar -x -C "$copy"
    chmod -R u=rwX,go=rX "$copy"
    zip_folder "$out/tarvix-$version-source.zip" "$out" "tarvix-$version"
    rm -rf "$copy"
}

install_packages windows
use_compiler_cache
qt=$("$here/build-qt.sh" | tee /dev/stderr | tail -n 1)
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(source_date)}
export SOURCE_DATE_EPOCH

say "Building Tarvix $version for Windows"
mapfile -t options < <(qt_options "$qt")
configure_windows "$out/program" "${options[@]}" -DTARVIX_BUILD_TESTS=OFF
build_windows "$out/program" tarvix
fill_folder "$qt"
zip_folder "$out/tarvix-$version-windows.zip" "$out" Tarvix
make_installer
make_source_archive
rm -rf "$out/qt-source"
cp -r "$qt/source" "$out/qt-source"
say "In ${out#"$root/"}:"
(cd "$out" && ls -d Tarvix tarvix-"$version"-* qt-source)
