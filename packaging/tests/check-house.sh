#!/usr/bin/env bash
# Checks the project's files themselves: house rules that no compiler sees.
set -euo pipefail
# shellcheck source=packaging/scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
root=$(project_root)
cd "$root"

faults=0
fault() {
    printf 'house rule: %s\n' "$*" >&2
    faults=$((faults + 1))
}

# All files of the project, those that git does not know yet included.
mapfile -t files < <(git ls-files --cached --others --exclude-standard | while IFS= read -r file; do
    [ ! -f "$file" ] || printf '%s\n' "$file"
done)
[ "${#files[@]}" -gt 0 ] || fail "git names no files."
mapfile -t texts < <(grep -IlE '^' "${files[@]}")

# Prints what it finds and counts it as one fault.
none_of() {
    local rule=$1
    shift
    if "$@" >&2; then fault "$rule (above)"; fi
}

none_of "no path of a machine" \
    grep -nF -e "$root/" -e "/root""/" "${texts[@]}"
none_of "no blanks at the end of a line" grep -nE '[[:blank:]]+$' "${texts[@]}"
none_of "line ends are single line feeds" grep -lE $'\r$' "${texts[@]}"
mapfile -t code < <(printf '%s\n' "${texts[@]}" |
    grep -E '\.(cpp|h|py|sh|cmake|json)$|CMakeLists\.txt$')
none_of "no tabs in code" grep -nP '\t' "${code[@]}"
for file in "${texts[@]}"; do
    [ -z "$(tail -c 1 "$file")" ] || fault "$file does not end with a line feed"
done

# A source file that outgrows this wants to be two.
for file in "${files[@]}"; do
    case $file in
        *.cpp | *.h)
            lines=$(wc -l <"$file")
            [ "$lines" -le 500 ] || fault "$file has $lines lines"
            ;;
    esac
done

# Scripts can be run, and the shell's are clean.
for file in "${texts[@]}"; do
    [ "$(head -c 2 "$file")" != '#!' ] || [ -x "$file" ] || fault "$file cannot be run"
done
mapfile -t scripts < <(grep -lE -m 1 '^#!.*sh$' "${texts[@]}")
none_of "shellcheck finds nothing" bash -c '! shellcheck -x -S warning "$@"' - "${scripts[@]}"

# Spelled right but for what the product spells its own way ("mimimum", "Diamter"), names in the code,
# and words of other languages and notations.
none_of "codespell finds nothing" \
    bash -c '! codespell --ignore-words packaging/spellings.txt "$@"' - "${texts[@]}"

# Every file has a copyright holder and a licence, its own or that of .reuse/dep5.
none_of "reuse lint finds nothing" bash -c '! { reuse --root . lint --quiet || reuse --root . lint; }'

# The logos say their size, and the report's fits into three lines of 12 point text.
for logo in BrindleLogo VeltraneLogo; do
    # JFIF: unit (1 is dots per inch) and density across and down, at 13 bytes from the start.
    read -r -a density < <(od -An -tu1 -j 13 -N 5 "packaging/logos/$logo.jpg")
    [ "${density[*]}" = "1 2 88 2 88" ] || fault "$logo.jpg is not at 600 dots per inch"
    size=$(identify -format '%wx%h' "packaging/logos/$logo.jpg")
    [ "$size" = 1272x318 ] || fault "$logo.jpg is not 1272 x 318 dots but $size"
    sampling=$(identify -format '%[jpeg:sampling-factor]' "packaging/logos/$logo.jpg")
    [ "$sampling" = 1x1,1x1,1x1 ] || fault "$logo.jpg has coarser colours than dots: $sampling"
done

[ "$faults" -eq 0 ] || fail "$faults house rules are broken."
say "${#files[@]} files keep the house rules."
