#!/usr/bin/python3
"""Lays screenshots side by side in rows: montage.py OUT.png COLUMNS [--scale F] IMAGE...

Each picture gets its file name under it, so a contact sheet says which screen is which.
Needs python3-pil (scripts/deps.sh installs it)."""
import os
import sys

from PIL import Image, ImageDraw


def main(argv):
    if len(argv) < 4:
        sys.exit(__doc__)
    out, columns, rest = argv[1], int(argv[2]), argv[3:]
    scale = 1.0
    if rest[0] == "--scale":
        scale, rest = float(rest[1]), rest[2:]
    images = [Image.open(path).convert("RGB") for path in rest]
    width = int(max(i.width for i in images) * scale)
    height = int(max(i.height for i in images) * scale)
    label, gap = 22, 8
    rows = (len(images) + columns - 1) // columns
    sheet = Image.new("RGB", (columns * (width + gap) + gap, rows * (height + label + gap) + gap), "#777777")
    draw = ImageDraw.Draw(sheet)
    for n, (path, image) in enumerate(zip(rest, images)):
        x = gap + (n % columns) * (width + gap)
        y = gap + (n // columns) * (height + label + gap)
        sheet.paste(image.resize((int(image.width * scale), int(image.height * scale))), (x, y))
        draw.text((x + 4, y + height + 4), os.path.splitext(os.path.basename(path))[0], fill="white")
    sheet.save(out)


if __name__ == "__main__":
    main(sys.argv)
