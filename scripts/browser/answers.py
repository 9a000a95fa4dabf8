"""What a page looks like in Chromium, as rows of text: the answer that galley has to give."""
import html
import math
import pathlib
import re

import picture
from chromium import Chromium
from page import Answer, resolved

HERE = pathlib.Path(__file__).parent
DEFAULT_SHEET = HERE.parent.parent / "web" / "default.css"
# Pages in one screenshot.
BATCH = 12


class Browser:
    """Answers for pages; starts Chromium. Use it in a `with` statement."""

    def __init__(self):
        self._chromium = Chromium()

    def __enter__(self):
        legend = "".join(f"<div>{html.escape(cluster)}</div>" for cluster in picture.CLUSTERS)
        legend = f"<html><head/><body>{legend}</body></html>"
        self._glyphs = picture.Glyphs(self._chromium.lay([(for_browser(legend), 2)])[0]["picture"])
        self.version = self._chromium.version
        return self

    def __exit__(self, *error):
        self._chromium.__exit__(*error)

    def answer(self, pages):
        """One answer for each (source, width in cells)."""
        answers = []
        for start in range(0, len(pages), BATCH):
            batch = pages[start:start + BATCH]
            laid = self._chromium.lay([(for_browser(source), width) for source, width in batch])
            answers += [self._read(one, *page) for one, page in zip(laid, batch)]
        return answers

    def _read(self, laid, source, width):
        rows = self._glyphs.read(laid["picture"])
        between, fits = laid["between"] or laid["exact"] % 16 != 0, True
        for cluster, left, top, across in laid["clusters"]:
            between = between or left % 8 != 0 or top % 16 != 0
            # What sticks out, or would if it were at a whole cell, is not in the picture, or not
            # wholly.
            if math.ceil(left / 8) + picture.cells_of(cluster) > width:
                # A gap of a justified line may be on either side of its letter.
                between = between or across > 8 * picture.cells_of(cluster)
                put(rows, int(top // 16), int(left // 8), cluster)
                fits = False
        covers = overlap(laid["clusters"])
        if between or covers or any(picture.UNKNOWN in cells for cells in rows):
            letters = "".join(cluster for cluster, *_ in laid["clusters"])
            # Which ones are covered depends on how cells are rounded.
            shown = "" if laid["sticksOut"] or covers else letters
            # Generated text is not among the clusters.
            fits = fits and not laid["scrolls"]
            return Answer([shown], between=True, fits=fits)
        rows = ["".join(cells).rstrip() for cells in rows]
        return Answer(rows, fits=fits, paint=picture.backgrounds(laid["picture"]))


def overlap(clusters):
    """Whether letters stand on one another. Galley shows one of them then."""
    boxes = sorted((top, left, left + 8 * picture.cells_of(cluster)) for cluster, left, top, _ in clusters)
    for place, (top, left, right) in enumerate(boxes):
        for other_top, other_left, other_right in boxes[place + 1:]:
            if other_top >= top + 16:
                break
            if other_left < right and left < other_right:
                return True
    return False


def put(rows, row, column, cluster):
    while len(rows) <= row:
        rows.append([])
    cells = rows[row]
    cells += [" "] * (column + picture.cells_of(cluster) - len(cells))
    cells[column:column + picture.cells_of(cluster)] = (
        [cluster, ""] if picture.cells_of(cluster) == 2 else [cluster])


def for_browser(source):
    """The page with our sheet before its own, weaker whatever its selectors, and that of the check
    behind them. A browser draws the symbols of lists as it likes; it is given the characters
    instead. Borders of all styles are solid, and an `img` is its `alt`."""
    default = escape(DEFAULT_SHEET.read_text())
    default = f"<style>@layer check, default; @layer default {{ {default} }}</style>"
    check = f"<style>{escape((HERE / 'check.css').read_text())}</style>"
    source = re.sub(r'<img alt="(.*?)" */>', r"<alt>\1</alt>", resolved(source))
    source = re.sub(r"border[\w-]*: [^;}\"]*",
                    lambda found: re.sub("double|dashed|dotted", "solid", found[0]), source)
    head, body = source.split("<body", 1)
    source = re.sub(r"\bimg(?=[ .:])", "alt", head) + "<body" + body
    source = source.replace("<html>", '<html xmlns="http://www.w3.org/1999/xhtml">', 1)
    source = re.sub(r"<head */>", "<head></head>", source, 1)
    source = source.replace("<head>", "<head>" + default, 1)
    source = source.replace("</head>", check + "</head>", 1)
    return re.sub(r"(list-style[a-z-]*:[^;}\"]*?)\b(disc|circle|square)\b",
                  lambda found: f"{found[1]}'{picture.SYMBOLS[found[2]]} '", source)


def escape(sheet):
    return sheet.replace("&", "&amp;").replace("<", "&lt;")
