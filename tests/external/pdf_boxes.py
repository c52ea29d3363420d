#!/usr/bin/env python3
"""pdf_boxes.py FILE.pdf...: fails if a word of a page lies upon another one or beyond the sheet, or if a page
but the last has hardly a line.

Asks pdftotext (poppler-utils) for the boxes of all words. A box is as high as the font asks for, with room
for accents and tails that most words leave empty: two words touch when the boxes of their letters do.
"""
import re
import subprocess
import sys

WORD = re.compile(r'<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*?)</word>')
PAGE = re.compile(r'<page width="([\d.]+)" height="([\d.]+)">(.*?)</page>', re.S)
EMPTY_ABOVE, EMPTY_BELOW = 0.22, 0.2  # of the height of a box, above capitals and below the base line
SLACK = 0.3  # [points]
FEWEST_LINES = 12  # of a page, with its head and its foot; labels of a drawing count


def boxes(page):
    for x1, y1, x2, y2, text in WORD.findall(page):
        x1, y1, x2, y2 = map(float, (x1, y1, x2, y2))
        if y2 - y1 > 3 * (x2 - x1) and len(text) > 1:
            continue  # written upwards
        high = y2 - y1
        yield x1, y1 + EMPTY_ABOVE * high, x2, y2 - EMPTY_BELOW * high, text


def faults(file):
    told = subprocess.run(["pdftotext", "-bbox", file, "-"], capture_output=True, text=True, check=True).stdout
    pages = PAGE.findall(told)
    if not pages:
        yield "no pages"
    for number, (width, height, page) in enumerate(pages, 1):
        words = sorted(boxes(page), key=lambda w: w[1])
        lines = len({round(w[3]) for w in words})
        if number < len(pages) and lines < FEWEST_LINES:
            yield f"page {number}: {lines} lines"
        for i, a in enumerate(words):
            if a[0] < 0 or a[1] < 0 or a[2] > float(width) or a[3] > float(height):
                yield f"page {number}: {a[4]!r} leaves the sheet"
            for b in words[i + 1:]:
                if b[1] >= a[3] - SLACK:
                    break
                if a[0] < b[2] - SLACK and b[0] < a[2] - SLACK:
                    yield f"page {number}: {a[4]!r} and {b[4]!r} lie upon each other at {a[0]:.0f}, {a[1]:.0f}"


def main(files):
    bad = 0
    for file in files:
        for fault in faults(file):
            print(f"{file}: {fault}")
            bad = 1
    return bad


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
