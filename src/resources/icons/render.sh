#!/bin/sh
# Renders every <name>.svg in this folder to ../res/<name>.ico holding 16, 24, 32 and 48 px
# images, the 16 px one first (a rich-text <img> shows the first image of an ICO).
#
# Needs rsvg-convert (Debian package librsvg2-bin) and ImageMagick's convert (imagemagick).
# Usage: render.sh [name...]   (no names: every icon)
set -eu

here=$(cd "$(dirname "$0")" && pwd)
out=$(cd "$here/../res" && pwd)

for tool in rsvg-convert convert; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        echo "render.sh: $tool not found; install librsvg2-bin and imagemagick" >&2
        exit 1
    fi
done

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT INT TERM

if [ $# -eq 0 ]; then
    set -- $(cd "$here" && ls *.svg | sed 's/\.svg$//')
fi

for name in "$@"; do
    svg="$here/$name.svg"
    [ -f "$svg" ] || { echo "render.sh: no $svg" >&2; exit 1; }
    for size in 16 24 32 48; do
        rsvg-convert --width "$size" --height "$size" --format png "$svg" --output "$tmp/$name-$size.png"
    done
    # PNG32: keep full 8-bit alpha in every entry, whatever the colour count.
    convert "PNG32:$tmp/$name-16.png" "PNG32:$tmp/$name-24.png" \
            "PNG32:$tmp/$name-32.png" "PNG32:$tmp/$name-48.png" "ICO:$out/$name.ico"
    echo "$name.ico"
done
