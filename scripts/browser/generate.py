"""Makes pages from seeds: each uses a few of the features of the web dialect.

No word begins with a hyphen, and markers have room at the page's left edge: there galley means to
differ from browsers. Where Chromium is not right, by the list in docs/web.md, pages do not go.
"""
import re
import unicodedata

from choices import CLASSES, Choices
from page import Page, resolved
from rules import make_rules
from spans import spanning_table
from tables import Tables
from words import INLINE, Words

BLOCKS = ("p p p p div div section header footer main nav article aside address figure figcaption "
          "blockquote blockquote h1 h2 h3 h4 h5 h6").split()
MARKERS = ("disc circle square decimal decimal-leading-zero lower-alpha upper-alpha lower-latin "
           "upper-latin lower-roman upper-roman lower-greek '+' none").split()
AVOIDED = ["overflow-wrap: normal", "list-style-position: inside"]
# Where the inner element says no more than a word, what it has from its parent, or has not.
KEYWORDS = "margin-left padding-left text-align text-indent white-space".split()


def make_page(seed):
    chosen = Choices(seed)
    narrow = chosen.number(1, chosen.pick([12, 30, 40, 60, 80, 200]))
    width = chosen.pick([20, 40, 60, 80, 100]) if chosen.chance(0.4) else narrow
    blocks = Blocks(chosen)
    body = f"<body>{blocks.blocks(0, chosen.number(1, 4))}</body>"
    rules = make_rules(chosen, width, resolved(body)) if chosen.chance(0.5) else ""
    if "blocks in a cell" in chosen.features:
        rules = rules.replace("-right", "-left")
    if {"table-layout: fixed", "border-collapse"} <= chosen.features:
        rules = re.sub(r"(?<!-)width: [^;} ]*", "visibility: hidden", rules)
    title = chosen.use("title", "<title>t</title>") if chosen.chance(0.1) else ""
    head = f"<head>{title}<style>{rules}</style></head>" if rules else "<head/>"
    page = avoid(f"<html>{head}{body}</html>", width)
    absent = {feature for feature in chosen.features if feature in AVOIDED and feature not in page}
    return Page(seed, width, page, sorted(chosen.features - absent))


def avoid(source, width):
    """The page without what Chromium lays out in another way than the standards say, and without
    tables and cells that have no element, which cannot be asked whether they fit."""
    head, body = source.split("<body>")
    body = re.sub(r"(<t[dh] [^>]*)display: block", r"\1visibility: hidden", body)
    source = f"{head.replace('display: block', 'visibility: hidden')}<body>{body}"
    # Lines break where there is no room for a part of a cell, which no letter shows.
    if "display: inline" in source:
        source = re.sub(r"((?:padding|margin)[a-z-]*: )[\d.]+%", r"\g<1>1ch", source)
    # No marker is seen behind the right edge of the page.
    if width < 24:
        source = source.replace("list-style-position: inside", "list-style-position: outside")
    # White space that hangs has no background.
    if "pre-wrap" in source and "display: inline" in source:
        source = source.replace("background-color", "word-spacing")
    if "pre-wrap" in source:
        source = re.sub(r"(</?)mark\b", r"\1samp", source)
        inline = rf"(<({'|'.join(INLINE)}) [^>]*)background-color"
        head, body = re.sub(inline, r"\1word-spacing", source).split("<body>")
        source = f"{head.replace('background-color', 'word-spacing')}<body>{body}"
    if "break-all" in source:
        source = re.sub("[\u0300-\u036f]", "", unicodedata.normalize("NFC", source))
    return source


class Blocks:
    """Makes blocks by the choices that it is given."""

    def __init__(self, chosen):
        self._chosen = chosen
        self._words = Words(chosen)
        self._tables = Tables(chosen, self._words, self.blocks)

    def blocks(self, depth, count):
        spaces = ["", " ", "\n"]
        return "".join(self._chosen.pick(spaces) + self._block(depth) for _ in range(count))

    def _block(self, depth):
        makers = [self._paragraph] * 5 + [self._narrow, self._empty, self._line, self._pre]
        makers += [self._terms, self._keywords, self._keywords, self._loose_items]
        if depth < 3:
            makers += [self._nest] * 3 + [self._list] * 5 + [self._tables.table] * 4
            makers += [self._tables.boxes, self._spanning_table]
        return self._chosen.pick(makers)(depth)

    def _attributes(self, declarations=(), share=0.35):
        """Attributes of a block: a class, an id, and a style with some of its own."""
        chosen, style = self._chosen, [*declarations]
        while chosen.chance(share):
            style.append(chosen.block_declaration())
        if chosen.chance(share * 0.7):
            style.append(chosen.text_declaration())
        classes = chosen.pick([*CLASSES, "one two", "three  one"])
        text = f' class="{classes}"' if chosen.chance(0.4) else ""
        text += f' id="{chosen.pick(CLASSES)}"' if chosen.chance(0.1) else ""
        return text + (f' style="{"; ".join(style)}"' if style else "")

    def _paragraph(self, _):
        chosen, tag = self._chosen, self._chosen.pick(BLOCKS)
        if chosen.chance(0.08):
            own = [chosen.use("display: inline", "display: inline")]
            text = self._words.text().replace("<br/></", "</")
            return f"<{tag}{self._attributes(own)}>{text} {self._words.word()}</{tag}>"
        return f"<{tag}{self._attributes()}>{self._words.text()}</{tag}>"

    def _narrow(self, _):
        """A paragraph whose lines break; where that matters, a browser mostly lays it at whole
        cells."""
        chosen, words = self._chosen, self._words
        style = chosen.pick(["text-align: center", "text-align: justify", "text-align: justify",
                             "overflow-wrap: normal", "word-break: break-all",
                             "word-break: keep-all", "text-indent: -4ch", "text-indent: -2ch",
                             "text-indent: -3ch"])
        chosen.use("text-indent below 0" if style.startswith("text-indent") else style)
        texts = {"text-align: center": "<br/>".join(words.even_word() for _ in range(2)),
                 "text-align: justify": " ".join(words.even_word() for _ in range(5))}
        text = texts.get(style) or words.text(4) + words.long_word()
        if style.startswith("text-indent"):
            # What reaches farther to the left is not shown over edges.
            style += "; padding-left: 4ch !important"
        return f'<p style="width: {2 * chosen.number(4, 8)}ch; {style}">{text}</p>'

    def _nest(self, depth):
        chosen, words = self._chosen, self._words
        if chosen.chance(0.2):
            block = f"<p{self._attributes()}>{words.words(2)}</p>"
            edges = chosen.pick(["", ' style="padding-right: 2ch"', ' style="border-left: solid"'])
            return chosen.use("block in inline",
                              f"<div{self._attributes()}>{words.words(2)}<b{edges}>{words.words(1)}"
                              f"{block}{words.text(2)}</b></div>")
        loose = chosen.use("text beside blocks", words.text(3)) if chosen.chance(0.3) else ""
        inner = self.blocks(depth + 1, chosen.number(1, 3))
        return f"<div{self._attributes()}>{loose}{inner}{chosen.pick(['', loose])}</div>"

    def _keywords(self, _):
        """A block that has of the one around it what a word says."""
        chosen, words = self._chosen, self._words
        word = chosen.pick(["inherit", "initial", "unset", "unset"])
        values = [f"{chosen.number(1, 4)}ch" for _ in range(2)]
        chosen.use(f"keyword: {word}")
        name = chosen.pick(KEYWORDS)
        around, own = {"text-align": ["right", "left"],
                       "white-space": ["pre", "nowrap"]}.get(name, values)
        inner = f'<div style="{name}: {own}; {name}: {word}">{words.text(4)}</div>'
        return f'<div style="{name}: {around}">{inner}</div>'

    def _loose_items(self, _):
        chosen = self._chosen
        style = f"display: list-item; list-style-type: {chosen.pick(['decimal', 'circle', 'disc'])}"
        items = "".join(f'<div style="{style}">{self._words.text(3)}</div>'
                        for _ in range(chosen.number(1, 3)))
        return chosen.use("display: list-item", f'<div style="padding-left: 7ch !important">{items}</div>')

    def _spanning_table(self, _):
        return spanning_table(self._chosen, self._words)

    def _empty(self, _):
        inner = self._chosen.pick(["", " ", "<p></p>", '<div style="margin: 2lh 0"></div>',
                                   '<b style="padding-left: 2ch"></b>'])
        return self._chosen.use("empty block", f"<div{self._attributes(share=0.6)}>{inner}</div>")

    def _line(self, _):
        return self._chosen.use("hr", f"<hr{self._attributes(share=0.2)}/>")

    def _pre(self, _):
        chosen, style = self._chosen, []
        if chosen.chance(0.5):
            style.append(chosen.use("tab-size", f"tab-size: {chosen.pick([1, 2, 4, 5])}"))
        if chosen.chance(0.4):
            kind = chosen.pick(["pre-wrap", "pre-wrap", "pre-line"])
            style.append(chosen.use(f"white-space: {kind}", f"white-space: {kind}"))
            if chosen.chance(0.5):
                side = chosen.pick(["right", "center", "justify"])
                style.append(f"width: {2 * chosen.number(3, 10)}ch; text-align: {side}")
        spaces = [" ", "   ", "\t", "\t", "\t", "\n", "\n\n", " \n "]
        text = "".join(self._words.word() + chosen.pick(spaces) for _ in range(chosen.number(1, 8)))
        end = chosen.pick(["x", "", ""])
        return chosen.use("pre", f"<pre{self._attributes(style, 0.15)}>x{text}{end}</pre>")

    def _terms(self, _):
        pairs = "".join(f"<dt>{self._words.words(2)}</dt><dd>{self._words.words(5)}</dd>"
                        for _ in range(self._chosen.number(1, 2)))
        return self._chosen.use("dl", f"<dl>{pairs}</dl>")

    def _list(self, depth, is_nested=False):
        chosen, style, start = self._chosen, [], ""
        tag, kind = chosen.pick(["ul", "ol", "ol"]), chosen.pick(MARKERS)
        if chosen.chance(0.8):
            style.append(chosen.use(f"list: {kind}", f"list-style-type: {kind}"))
        if chosen.chance(0.25):
            style.append(chosen.use("list-style-position: inside", "list-style-position: inside"))
        if tag == "ol" and chosen.chance(0.3):
            start = chosen.use("list start", f' start="{chosen.pick([0, 1, 3, 8, 9])}"')
        # Room for "viii." and the blank behind it; in a list of that room what is usual will do.
        is_short = kind in ("disc", "circle", "square")
        if not (is_nested and is_short):
            style.append("padding-left: 7ch !important")
        items = "".join(self._item(depth) for _ in range(chosen.number(1, 4)))
        chosen.use(f"list depth {min(depth, 2)}")
        return f"<{tag}{start}{self._attributes(style, 0.1)}>{items}</{tag}>"

    def _item(self, depth):
        chosen, value = self._chosen, ""
        if chosen.chance(0.1):
            value = chosen.use("list value", f' value="{chosen.number(1, 12)}"')
        if chosen.chance(0.1):
            return chosen.use("empty item", f"<li{value}></li>")
        inner = self._words.text(6)
        if chosen.chance(0.2):
            inner = f"<p>{inner}</p>"
        if chosen.chance(0.1):
            inner += self._terms(depth)
        if chosen.chance(0.2) and depth < 2:
            inner += self._list(depth + 1, is_nested=True)
        return f"<li{value}{self._attributes(share=0.1)}>{inner}</li>"
