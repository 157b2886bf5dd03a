#!/bin/sh
# SPDX-License-Identifier: MIT
# Draws the pictures of all brand themes from their SVG sources. The pictures are checked in, so this is
# needed only after a change to a drawing or to one of the two tables (icons.tsv, colours.tsv).
# Needs rsvg-convert (librsvg2-bin) and convert (imagemagick).
set -eu

here=$(cd "$(dirname "$0")" && pwd)
themes=$here/../themes
tab=$(printf '\t')
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# draw SOURCE TARGET SCALE [STYLE SHEET]: no dates or other marks, so that a second run gives the same bytes.
draw() {
  rsvg-convert --zoom "$3" ${4:+--stylesheet "$4"} "$1" --output "$2"
}

# shrink PICTURE COLOURS: to a palette, which suits flat drawings and keeps the login page small.
shrink() {
  convert "$1" +dither -colors "$2" -strip -define png:exclude-chunks=date,time \
    -define png:compression-level=9 -define png:compression-filter=0 -define png:compression-strategy=0 \
    "PNG8:$work/shrunk.png"
  mv "$work/shrunk.png" "$1"
}

icons() {
  grep -v '^#' "$here/icons.tsv" | while IFS=$tab read -r name drawing role size scale; do
    case $role in
      quiet) colour=$quiet ;; brand) colour=$own ;; info) colour=$info ;;
      warning) colour=$warning ;; error) colour=$error ;;
      *) echo "make.sh: $name: unknown colour role $role" >&2; exit 1 ;;
    esac
    printf 'svg{color:%s}' "$colour" >"$work/colour.css"
    pixels=$((size * scale))
    rsvg-convert --width "$pixels" --height "$pixels" --stylesheet "$work/colour.css" \
      "$here/src/$drawing.svg" --output "$themes/$brand/$name.png"
  done
}

grep -v '^#' "$here/colours.tsv" | while IFS=$tab read -r brand quiet own info warning error; do
  mkdir -p "$themes/$brand"
  icons
  for logo in logo-primary-page-header logo-secondary-page-header; do
    draw "$here/brands/$brand-$logo.svg" "$themes/$brand/$logo.png" 2
  done
  draw "$here/brands/$brand-login-banner.svg" "$themes/$brand/login-banner.png" 2
  shrink "$themes/$brand/login-banner.png" 24
  for pixels in 16 32; do
    rsvg-convert --width "$pixels" --height "$pixels" "$here/brands/$brand-favicon.svg" \
      --output "$work/favicon-$pixels.png"
  done
  convert "$work/favicon-16.png" "$work/favicon-32.png" "$themes/$brand/favicon.ico"
done
