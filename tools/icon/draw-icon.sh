#!/usr/bin/env bash
# Draws the 72x72 dialog icon, ico_72_skelda.png, beside this script with ImageMagick:
# a blue rounded square with a white upward arrow over a shelf (a backup going up).
# The PNG is kept in the tree; run this again only to change the drawing.
set -euo pipefail
cd "$(dirname "$0")"
convert -size 72x72 xc:none \
  -fill '#1f6fb2' -draw 'roundrectangle 2,2 69,69 14,14' \
  -fill '#3d8fd6' -draw 'roundrectangle 2,2 69,40 14,14' \
  -fill '#1f6fb2' -draw 'rectangle 2,26 69,40' \
  -fill white -draw 'polygon 36,12 55,33 43,33 43,48 29,48 29,33 17,33' \
  -fill white -draw 'roundrectangle 16,53 56,59 3,3' \
  -strip PNG32:ico_72_skelda.png
