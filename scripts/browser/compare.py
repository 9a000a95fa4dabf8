"""Whether what galley prints of a page is Chromium's answer."""
import collections
import itertools
import os
import re
import subprocess
import tempfile
import unicodedata

from picture import BORDER, WHITE

SEQUENCE = re.compile(r"\x1b\[([\d;]*)m|\x1b\]8;[^\x1b\x07]*(?:\x1b\\|\x07)")
# The terminal's own yellow, which the default sheet asks for.
YELLOW = {"43": "#ffff00", "103": "#ffff00"}
# A picture does not tell an omicron.
ALIKE = {"ο": "o"}


class GalleyFailed(Exception):
    """It ended with a failure; says which."""


class Galley:
    """The tool, run once for each page."""

    def __init__(self, path):
        self._path = path

    def rows(self, page, output="plain"):
        """What it prints, line by line."""
        with tempfile.NamedTemporaryFile("w", suffix=".xml", encoding="utf-8") as file:
            file.write(page.source)
            file.flush()
            command = [self._path, "--dialect", "web", "--format", output,
                       *(["--color", "always"] if output == "ansi" else []),
                       "--width", str(page.width), file.name]
            try:
                run = subprocess.run(command, check=False, capture_output=True, timeout=60,
                                     env={**os.environ, "COLORTERM": "truecolor"})
            except subprocess.TimeoutExpired as late:
                raise GalleyFailed("no end within a minute") from late
        if run.returncode != 0:
            raise GalleyFailed(f"status {run.returncode}: {run.stderr.decode(errors='replace')}")
        text = run.stdout.decode(errors="replace")
        return text.removesuffix("\n").split("\n") if text else []


def cells(row):
    """A cluster for each cell of a row; the second cell of a wide one is empty, and what draws
    borders is BORDER."""
    found = []
    for character in row:
        if unicodedata.combining(character) and found:
            at = -2 if found[-1] == "" else -1
            found[at] = unicodedata.normalize("NFC", found[at] + character)
        elif "\u2500" <= character <= "\u257f":
            found.append(BORDER)
        else:
            found.append(ALIKE.get(character, character))
            if unicodedata.east_asian_width(character) in "WF":
                found.append("")
    return found


def difference(page, answer, rows):
    """What is wrong with the rows that galley printed, in a few words; None if nothing is."""
    actual = [cells(row) for row in rows]
    if answer.between:
        return misfit(page, answer, actual)
    if len(actual) != len(answer.rows):
        return f"{len(actual)} rows instead of {len(answer.rows)}"
    for number, expected in enumerate(map(cells, answer.rows)):
        if visible(expected, page.width) != shown(expected, actual, number, page.width):
            return f"row {number}"
    return None


def visible(row, width):
    """Without blanks at the end, and without borders beyond the page, which no picture shows."""
    kept = [" " if column >= width and cell == BORDER else cell for column, cell in enumerate(row)]
    while kept and kept[-1] == " ":
        kept.pop()
    return kept


def shown(expected, rows, number, width):
    """The same of a row that galley printed, without what no picture shows beyond the page: what is
    no letter, and markers."""
    return visible([" " if column >= width and cell != "" and expected[column:column + 1] in ([], [" "])
                    and not (cell.isalpha() and not in_marker(rows, number, column)) else cell
                    for column, cell in enumerate(rows[number])], width)


def in_marker(rows, number, column):
    """Whether a cell may be of a marker, the longest being "viii.", whose cells may stand one under
    the other."""
    begin, word = word_at(rows[number], column)
    for row in rows[number + 1:number + 5]:
        if "." in word:
            break
        word += word_at(row, begin)[1]
    return "." in word[:5]


def word_at(row, column):
    """Where the word begins that has a cell there, and the word; both may be empty."""
    begin = end = min(column, len(row))
    while begin > 0 and row[begin - 1] not in (" ", BORDER):
        begin -= 1
    while end < len(row) and row[end] not in (" ", BORDER):
        end += 1
    return begin, "".join(row[begin:end])


def misfit(page, answer, actual):
    """For pages that a browser lays between cells: are the letters there, in order, and inside?
    Where columns stand side by side, any order will do."""
    letters = unicodedata.normalize("NFC", answer.rows[0]).casefold()
    printed = "".join(cell for row in actual for cell in row if cell.strip()).casefold()
    if re.search("<table|display: table", page.source):
        missing = collections.Counter(letters) - collections.Counter(printed)
    else:
        rest = iter(printed)
        missing = [letter for letter in letters if letter not in rest]
    if missing:
        return f"without {''.join(missing)[:20]!r} in its place"
    out = [column + 1 for number, row in enumerate(actual) for column, cell in enumerate(row)
           if column >= page.width and cell not in (" ", BORDER)
           and not in_marker(actual, number, column)]
    if out and answer.fits:
        return f"{max(out)} cells wide, which fits into {page.width}"
    return None


def paint_difference(page, answer, rows):
    """As `difference`, for the backgrounds in rows with sequences."""
    for number, (text, runs, row) in enumerate(zip(answer.rows, answer.paint, rows)):
        expected = [WHITE] * page.width
        for start, end, colour in runs:
            expected[start:end] = [colour] * (end - start)
        under = itertools.zip_longest(expected, backgrounds(row), cells(text), fillvalue=WHITE)
        for column, (colour, actual, cell) in enumerate(under):
            # A terminal has no halves of wide characters.
            if cell not in (BORDER, "") and column < page.width and colour not in (actual, BORDER):
                return f"background at row {number}, column {column}: {actual}, not {colour}"
    return None


def backgrounds(row):
    """The background of each cell of a row with sequences."""
    found, colour, end = [], WHITE, 0
    for sequence in itertools.chain(SEQUENCE.finditer(row), [None]):
        start = sequence.start() if sequence else len(row)
        found += [colour] * len(cells(row[end:start]))
        if sequence:
            end = sequence.end()
            colour = next_background(colour, sequence[1])
    return found


def next_background(colour, parameters):
    if parameters is None:
        return colour
    rest = iter(parameters.split(";"))
    for one in rest:
        if one in ("", "0", "49"):
            colour = WHITE
        elif one in ("38", "48"):
            kind = next(rest)
            value = [int(next(rest)) for _ in range(3 if kind == "2" else 1)]
            if one == "48":
                colour = "#" + "".join(f"{part:02x}" for part in value)
        else:
            colour = YELLOW.get(one, colour)
    return colour


def side_by_side(page, answer, rows):
    """Both pages, their differing rows marked; of a page between cells, galley's."""
    if answer.between:
        return "\n".join(f"  {row}" for row in rows)
    width = min(max(page.width, 8), 100)
    lines = [f"  {'expected':{width}}   actual"]
    for expected, actual in itertools.zip_longest(answer.rows, rows, fillvalue="(none)"):
        left, right = cells(expected), cells(actual)
        mark = " " if visible(left, page.width) == visible(right, page.width) else "!"
        lines.append(f"{mark} {''.join(left)}{' ' * (width - len(left))} | {actual}")
    return "\n".join(lines)
