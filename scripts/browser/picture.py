"""Reads the picture of a page in Unifont back into characters, cell by cell."""
BORDER = "#"
SYMBOLS = {"disc": "\u2022", "circle": "\u25e6", "square": "\u25aa"}
WIDE = "日本語中文字幅漢水火木金土月山川田石花空雨海、。「」！かなカナ"
MARKED = [base + mark for base in "aeounxz" for mark in ("\u0301", "\u0308")]
NARROW = [chr(code) for code in range(0x21, 0x7f) if chr(code) != BORDER] + ["\u201c", "\u201d", "\u2018", "\u2019"]
CLUSTERS = [*NARROW, *SYMBOLS.values(), *MARKED, *(c.upper() for c in MARKED), *WIDE]


def cells_of(cluster):
    """The cells that one of the clusters above takes."""
    return 2 if cluster in WIDE else 1


class Glyphs:
    """The clusters by the pixels of their cells, learned from a picture with one a row."""

    def __init__(self, picture):
        self._known = {bytes(16): " "}
        inks, _ = separate(picture)
        for row, cluster in enumerate(CLUSTERS):
            key = pixels(inks, 0, row, cells_of(cluster))
            if key in self._known:
                raise RuntimeError(f"{cluster} looks like {self._known[key]}")
            self._known[key] = cluster

    def read(self, picture):
        """(rows of cells, whether all of them are whole). The second cell of a wide cluster is
        empty; a cell that is painted in part, or holds no known cluster, is a "?"."""
        inks, dark = separate(picture)
        rows, whole = [], True
        for row in range(picture.height // 16):
            cells = []
            while len(cells) < picture.width // 8:
                cells += self._read_cell(inks, dark, len(cells), row)
            whole = whole and "?" not in cells
            rows.append(cells)
        return rows, whole

    def _read_cell(self, inks, dark, column, row):
        wide = self._known.get(pixels(inks, column, row, 2))
        if wide:
            return [wide, ""]
        key = pixels(inks, column, row)
        painted = pixels(dark, column, row)
        if painted != key and key == bytes(16):
            return [BORDER if painted == b"\xff" * 16 else "?"]
        return [self._known.get(key, "?")]


def separate(picture):
    """Two masks: the pixels of letters, and those of letters and borders. Letters are black and
    borders magenta; backgrounds have much red and much green."""
    red, green, _ = picture.split()
    return (channel.point(lambda value: 255 * (value < 100)).convert("1", dither=0)
            for channel in (red, green))


def pixels(mask, column, row, cells=1):
    return mask.crop((8 * column, 16 * row, 8 * (column + cells), 16 * row + 16)).tobytes()


def backgrounds(picture):
    """For each row its runs of one background, [from, to, "#rrggbb"], without those of white."""
    rows = []
    for row in range(picture.height // 16):
        runs = []
        for column in range(picture.width // 8):
            colour = background(picture, column, row)
            if runs and runs[-1][1:] == [column, colour]:
                runs[-1][1] += 1
            else:
                runs.append([column, column + 1, colour])
        rows.append([run for run in runs if run[2] != "#ffffff"])
    return rows


def background(picture, column, row):
    cell = picture.crop((8 * column, 16 * row, 8 * column + 8, 16 * row + 16))
    light = [(count, colour) for count, colour in cell.getcolors(128) if min(colour[:2]) >= 128]
    return "#%02x%02x%02x" % max(light)[1] if light else "#ffffff"
