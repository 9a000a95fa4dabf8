"""Random choices, lengths and declarations that the parts of a page are made of."""
import random

SHARES = "10% 20% 25% 50%".split()
COLOURS = "#ffe0c0 #c0ffc0 #e0e0ff #ffff80".split()
CLASSES = "one two three".split()
BLOCK_KINDS = ("margin margin margin padding padding border border width width limits auto "
               "percentage background").split()
TEXT_KINDS = ("align align align text-indent text-indent white-space white-space white-space "
              "overflow-wrap overflow-wrap word-break word-break text-transform visibility display "
              "inherit").split()


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
        kind, side = self.pick(["padding", "margin", "border"]), self.pick(["left", "right"])
        self.use(f"inline {kind}")
        return f"{kind}-{side}: {'solid' if kind == 'border' else self.cells(3)}"

    def block_declaration(self):
        kind = self.pick(BLOCK_KINDS)
        self.use(kind)
        side = self.pick(["", "-left", "-right", "-top", "-bottom"])
        if kind in ("margin", "padding"):
            length = self.rows(2) if side in ("-top", "-bottom") else self.cells(4)
            return f"{kind}{side}: {length}" if side else f"{kind}: {self.rows(2)} {self.cells(3)}"
        if kind == "border":
            return f"border{side}: {self.pick(['solid', '1px solid', 'thin solid #f0f'])}"
        if kind == "width":
            return f"width: {self.cells(30)}"
        if kind == "limits":
            return self.pick([f"max-width: {self.cells(30)}", f"min-width: {self.cells(30)}",
                              f"width: 50%; max-width: {2 * self.number(3, 12)}ch"])
        if kind == "auto":
            margin = self.pick(["margin-left: auto", "margin-right: auto", "margin: 1lh auto"])
            return f"width: {2 * self.number(1, 12)}ch; {margin}"
        if kind == "percentage":
            side = self.pick(["width", "margin-left", "padding-right"])
            return f"{side}: {self.pick(SHARES)}"
        return f"background-color: {self.pick(COLOURS)}"

    def text_declaration(self):
        kind = self.pick(TEXT_KINDS)
        values = {
            "align": ("text-align", ["right", "right", "center", "justify", "justify"]),
            "text-indent": ("text-indent", [self.cells(6), self.cells(6), "50%"]),
            "white-space": ("white-space", ["nowrap", "nowrap", "pre", "pre-wrap", "pre-line"]),
            "overflow-wrap": ("overflow-wrap", ["normal", "normal", "anywhere"]),
            "word-break": ("word-break", ["keep-all", "break-all"]),
            "text-transform": ("text-transform", ["uppercase", "uppercase", "capitalize"]),
            "visibility": ("visibility", ["hidden"]),
            "display": ("display", ["none", "block", "block"]),
            "inherit": (self.pick(["margin", "padding-left", "text-align", "text-indent"]),
                        ["inherit", "initial", "unset"])}
        name, options = values[kind]
        value = self.pick(options)
        exact = kind in ("align", "white-space", "word-break", "overflow-wrap")
        self.use(f"{name}: {value}" if exact else kind)
        return f"{name}: {value}"
