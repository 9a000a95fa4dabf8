"""Reads the picture of a page in Unifont back into characters, cell by cell."""
BORDER = "#"
UNKNOWN = "\ufffd"
SYMBOLS = {"disc": "\u2022", "circle": "\u25e6", "square": "\u25aa"}
WIDE = "日本語中文字幅漢水火木金土月山川田石花空雨海、。「」！かなカナ"
EMOJI = "⭐✅"
MARKED = [base + mark for base in "aeounxz" for mark in ("\u0301", "\u0308")]
ASCII = [chr(code) for code in range(0x21, 0x7f) if chr(code) != BORDER]
GREEK = "αβγδεζηθικλμνξ"
CLUSTERS = [*ASCII, "\u201c", "\u201d", "\u2018", "\u2019", "\u2013", "\u2014", "\u2026", *SYMBOLS.values(),
            *MARKED, *(cluster.upper() for cluster in MARKED), "\u00f1", "\u00d1", *GREEK, *WIDE, *EMOJI]
WHITE = "#ffffff"
MAGENTA = (255, 0, 255)


def cells_of(cluster):
    """The cells that one of the clusters above takes."""
    return 2 if cluster in WIDE + EMOJI else 1


class Mask:
    """The pixels of a picture that are dark in one channel, a byte for each row of a cell."""

    def __init__(self, channel):
        dark = channel.point(lambda value: 255 * (value < 100)).convert("1", dither=0)
        self._data = dark.tobytes()
        self._columns = channel.width // 8

    def cell(self, column, row, cells=1):
        """The pixels of so many cells; of fewer at the end of the row."""
        strip = self._data[16 * self._columns * row:16 * self._columns * (row + 1)]
        return b"".join(strip[one::self._columns]
                        for one in range(column, min(column + cells, self._columns)))


def masks(picture):
    """Of letters, and of letters and borders. Letters are black, borders are magenta, and
    backgrounds have much red and much green."""
    red, green, _ = picture.split()
    return Mask(red), Mask(green)


class Glyphs:
    """The clusters by the pixels of their cells, learned from a picture with one a row."""

    def __init__(self, picture):
        self._known = {bytes(16): " "}
        letters, _ = masks(picture)
        for row, cluster in enumerate(CLUSTERS):
            key = letters.cell(0, row, cells_of(cluster))
            if key in self._known:
                raise RuntimeError(f"{cluster} looks like {self._known[key]}")
            self._known[key] = cluster

    def read(self, picture):
        """Rows of cells. The second cell of a wide cluster is empty; one that is painted in part,
        or holds nothing known, is UNKNOWN."""
        letters, inks = masks(picture)
        rows = []
        for row in range(picture.height // 16):
            cells = []
            while len(cells) < picture.width // 8:
                cells += self._read_cell(letters, inks, len(cells), row)
            rows.append(cells)
        return rows

    def _read_cell(self, letters, inks, column, row):
        wide = self._known.get(letters.cell(column, row, 2))
        if wide and cells_of(wide) == 2:
            return [wide, ""]
        key, ink = letters.cell(column, row), inks.cell(column, row)
        if key == bytes(16) and ink != key:
            return [BORDER if ink == b"\xff" * 16 else UNKNOWN]
        return [self._known.get(key, UNKNOWN)]


def backgrounds(picture):
    """For each row its runs of one background, [from, to, "#rrggbb"], without those of white."""
    rows = []
    for row in range(picture.height // 16):
        runs = []
        strip = picture.crop((0, 16 * row, picture.width, 16 * row + 16))
        for column in range(picture.width // 8 if has_background(strip) else 0):
            colour = background(strip.crop((8 * column, 0, 8 * column + 8, 16)))
            if runs and runs[-1][1:] == [column, colour]:
                runs[-1][1] += 1
            else:
                runs.append([column, column + 1, colour])
        rows.append([run for run in runs if run[2] != WHITE])
    return rows


def has_background(strip):
    return any(colour == MAGENTA or (min(colour[:2]) >= 128 and min(colour) < 255)
               for _, colour in strip.getcolors(strip.width * 16))


def background(cell):
    """BORDER if one is there, under a letter or not: what it stands on cannot be seen."""
    if any(colour == MAGENTA for _, colour in cell.getcolors(128)):
        return BORDER
    light = [(count, colour) for count, colour in cell.getcolors(128) if min(colour[:2]) >= 128]
    return "#%02x%02x%02x" % max(light)[1] if light else WHITE
