#!/bin/sh
# Draws a contact sheet of the rendered icons (../res/*.ico) for checking them by eye: each
# icon at 16, 24, 32 and 48 px on a light and on a dark background, the 16 px image enlarged,
# and the date-navigation arrows as Qt shows them in a 14x24 button (the 24 px image fitted
# into 14x14). Needs ImageMagick. Usage: contact-sheet.sh OUTPUT.png
set -eu

here=$(cd "$(dirname "$0")" && pwd)
res="$here/../res"
output=${1:?usage: contact-sheet.sh OUTPUT.png}
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT INT TERM

light='#F3F4F6'
dark='#2B2F35'
rows=""
for ico in "$res"/*.ico; do
    name=$(basename "$ico" .ico)
    for i in 0 1 2 3; do
        convert "$ico[$i]" "PNG32:$tmp/$name-$i.png"
    done
    cells=""
    for bg in "$light" "$dark"; do
        for i in 0 1 2 3; do
            convert -background "$bg" "$tmp/$name-$i.png" -gravity center -extent 54x54 "$tmp/$name-$bg-$i.png"
            cells="$cells $tmp/$name-$bg-$i.png"
        done
    done
    convert -background "$light" "$tmp/$name-0.png" -filter point -resize 300% \
        -gravity center -extent 54x54 "$tmp/$name-zoom.png"
    cells="$cells $tmp/$name-zoom.png"
    case "$name" in
        *_pre|*_next)
            convert -background none "$tmp/$name-1.png" -filter triangle -resize 14x14 \
                -gravity center -extent 14x24 "$tmp/$name-nav.png"
            convert -background "$light" "$tmp/$name-nav.png" -gravity center -extent 54x54 "$tmp/$name-nav1.png"
            convert -background "$light" "$tmp/$name-nav.png" -filter point -resize 200% \
                -gravity center -extent 54x54 "$tmp/$name-nav2.png"
            cells="$cells $tmp/$name-nav1.png $tmp/$name-nav2.png" ;;
    esac
    convert -background "$light" -fill '#222' -font DejaVu-Sans -pointsize 13 \
        -size 170x54 -gravity west "label:$name" "$tmp/$name-label.png"
    convert -background "$light" "$tmp/$name-label.png" $cells +append \
        -gravity west -extent 880x54 "$tmp/row-$name.png"
    rows="$rows $tmp/row-$name.png"
done
convert -background "$light" $rows -append "$output"
echo "$output"
