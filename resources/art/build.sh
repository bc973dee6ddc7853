#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Makes every picture of the program from the sources in this folder. Needs rsvg-convert (librsvg),
# icotool (icoutils) and ImageMagick.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

icon=../myapp.ico
images=../images
icons=../../packaging/icons/hicolor
sizes=(16 24 32 48 64 128 256)
largest_in_ico=128

for tool in rsvg-convert icotool; do
    if ! command -v "$tool" >/dev/null; then
        echo "build.sh: $tool is missing" >&2
        exit 1
    fi
done
if command -v magick >/dev/null; then
    magick=magick
elif command -v convert >/dev/null; then
    magick=convert
else
    echo "build.sh: ImageMagick is missing" >&2
    exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# png SOURCE SIZE RESULT
png() {
    rsvg-convert --width="$2" --height="$2" --output="$3" "$1"
}

# gif SOURCE SIZE RESULT EDGE: the half-covered pixels along the slopes are laid over the EDGE
# colour and kept, since a GIF knows no partial transparency.
gif() {
    png "$1" "$2" "$work/gif.png"
    "$magick" \( "$work/gif.png" -background "$4" -flatten \) \
        \( "$work/gif.png" -alpha extract -threshold 45% \) \
        -alpha off -compose CopyOpacity -composite -strip +dither "$3"
}

# The application icon. The sizes that lose detail have sources of their own.
for size in "${sizes[@]}"; do
    case $size in
        16) source=varnoplexora-small.svg ;;
        24 | 48) source=varnoplexora-$size.svg ;;
        *) source=varnoplexora.svg ;;
    esac
    mkdir -p "$icons/${size}x${size}/apps"
    png "$source" "$size" "$icons/${size}x${size}/apps/varnoplexora.png"
done
mkdir -p "$icons/scalable/apps"
cp varnoplexora.svg "$icons/scalable/apps/varnoplexora.svg"

# From 48 up the entries of the .ico are PNG (--raw), which keeps it small. The program decodes all of them
# at each start: what title bars never show is left to the desktop's own icons.
entries=()
for size in "${sizes[@]}"; do
    ((size > largest_in_ico)) && continue
    file=$icons/${size}x${size}/apps/varnoplexora.png
    if ((size >= 48)); then
        entries+=("--raw=$file")
    else
        entries+=("$file")
    fi
done
icotool --create --output="$icon" "${entries[@]}"

# The arrows of the buttons and the sample without a colour, each at one and at two pixels per unit.
mkdir -p "$images"
gif arrow-down.svg 24 "$images/BtnDownGreenArrowU.gif" '#3f7d4a'
gif arrow-down.svg 48 "$images/BtnDownGreenArrowU@2x.gif" '#3f7d4a'
gif arrow-up.svg 24 "$images/BtnUpRedArrowU.gif" '#a04a40'
gif arrow-up.svg 48 "$images/BtnUpRedArrowU@2x.gif" '#a04a40'
png no-color.svg 25 "$images/noColor.png"
png no-color.svg 50 "$images/noColor@2x.png"
