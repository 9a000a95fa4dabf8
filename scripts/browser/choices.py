"""Random choices, lengths and declarations that the parts of a page are made of."""
import random

SHARES = "10% 20% 25% 50%".split()
COLOURS = "#ffe0c0 #c0ffc0 #e0e0ff #ffff80".split()
CLASSES = "one two three".split()
LINES = "solid double dashed dotted none hidden".split()
BLOCK_KINDS = ("margin margin margin padding padding sides border border border border width width "
               "limits auto percentage background").split()
TEXT_KINDS = ("align align align text-indent text-indent white-space white-space white-space "
              "overflow-wrap overflow-wrap word-break word-break text-transform text-transform "
              "visibility display").split()
INLINE_TEXT_KINDS = ("white-space white-space overflow-wrap word-break text-transform "
                     "visibility").split()


class Choices:
    """One seed's; remembers which features were chosen."""

    def __init__(self, seed):
        self._random = random.Random(seed)
        self.features = set()

    def chance(self, share):
        return self._random.random() < share

    def pick(self, choices):
        return self._random.choice(choices)

    def number(self, least, most):
        return self._random.randint(least, most)

    def use(self, feature, text=""):
        self.features.add(feature)
        return text

    def cells(self, most):
        """A length across of at most so many cells, in one of its units."""
        cells = self.number(0, most)
        return self.pick([f"{cells}ch", f"{cells}ch", f"{8 * cells}px", f"{cells / 2:g}em",
                          f"{cells / 2:g}rem", f"{6 * cells}pt"])

    def rows(self, most):
        rows = self.number(0, most)
        return self.pick([f"{rows}lh", f"{rows}lh", f"{16 * rows}px", f"{rows}em",
                          f"{12 * rows}pt"])

    def edge_declaration(self):
        """For an inline element."""
        kind = self.pick(["padding", "margin", "border", "background"])
        side = self.pick(["left", "right"])
        self.use(f"inline {kind}")
        if kind == "background":
            return self.background()
        return f"{kind}-{side}: {'solid' if kind == 'border' else self.cells(3)}"

    def inline_declaration(self):
        """Of text, for an inline element."""
        return self.use("inline text", self.text_declaration(INLINE_TEXT_KINDS))

    def block_declaration(self):
        kind = self.pick(BLOCK_KINDS)
        self.use(kind)
        side = self.pick(["", "-left", "-right", "-top", "-bottom"])
        if kind in ("margin", "padding"):
            length = self.rows(2) if side in ("-top", "-bottom") else self.cells(4)
            return f"{kind}{side}: {length}" if side else f"{kind}: {self.rows(2)} {self.cells(3)}"
        if kind == "border":
            return self._border(side)
        if kind == "sides":
            edges = [self.rows(2), self.cells(4), self.rows(2), self.cells(4)]
            return f"{self.pick(['margin', 'padding'])}: {' '.join(edges[:self.number(3, 4)])}"
        if kind == "width":
            return f"width: {self.cells(30)}"
        if kind == "limits":
            return self.pick([f"max-width: {self.cells(30)}", f"min-width: {self.cells(30)}",
                              f"width: 50%; max-width: {2 * self.number(3, 12)}ch"])
        if kind == "auto":
            margin = self.pick(["margin-left: auto", "margin-right: auto", "margin: 1lh auto"])
            return f"width: {2 * self.number(1, 12)}ch; {margin}"
        if kind == "percentage":
            side = self.pick(["width", "margin-left", "padding-right", "padding-top",
                              "margin-bottom"])
            # Of most widths a tenth is no whole number of rows, of the most common ones it is.
            share = "10%" if side in ("padding-top", "margin-bottom") else self.pick(SHARES)
            return f"{side}: {share}"
        return self.background()

    def background(self):
        return f"background-color: {self.pick(COLOURS)}"

    def _border(self, side):
        if self.chance(0.2):
            lines = " ".join(self.pick(LINES) for _ in range(self.number(1, 4)))
            return self.use("border-style", f"border-style: {lines}")
        line = self.pick(LINES)
        self.use(f"border: {line}")
        thickness, colour = self.pick(["", "1px ", "thin ", "thick "]), self.pick(["", " #f0f"])
        return f"border{side}: {thickness}{line}{colour}"

    def text_declaration(self, kinds=TEXT_KINDS):
        kind = self.pick(kinds)
        values = {
            "align": ("text-align", ["right", "right", "center", "justify", "justify"]),
            "text-indent": ("text-indent", [self.cells(6), self.cells(6), "50%"]),
            "white-space": ("white-space", ["nowrap", "nowrap", "pre", "pre-wrap", "pre-line",
                                            "normal"]),
            "overflow-wrap": ("overflow-wrap", ["normal", "normal", "anywhere"]),
            "word-break": ("word-break", ["keep-all", "break-all"]),
            # Chromium does not always answer the same of `capitalize`.
            "text-transform": ("text-transform", ["uppercase", "lowercase"]),
            "visibility": ("visibility", ["hidden", "hidden", "visible"]),
            "display": ("display", ["none", "block", "block"])}
        name, options = values[kind]
        value = self.pick(options)
        exact = kind in ("align", "white-space", "word-break", "overflow-wrap", "text-transform")
        self.use(f"{name}: {value}" if exact else kind)
        return f"{name}: {value}"
