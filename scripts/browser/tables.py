"""Tables, whose collapsed borders run along whole lines of their grid: where they do not, galley
means to differ from browsers. In those each column has a cell of its own and some room."""
import dataclasses
import re

from words import INLINE

RIGHT_EDGE = re.compile(rf"(<(?:{'|'.join(INLINE)}) [^>]*?)-right")


@dataclasses.dataclass
class Cells:
    """What the cells of a table have in common: how deep it stands, a declaration, widths that some
    of them have, and how many; whether their first lines are in one row."""
    depth: int
    style: str
    widths: list
    share: float
    baselines: bool


class Tables:
    """Makes tables by the choices that it is given; `blocks` makes so many blocks for a cell of a
    table at a depth."""

    def __init__(self, choices, words, blocks):
        self._choices, self._words, self._blocks = choices, words, blocks

    def table(self, depth):
        chosen = self._choices
        columns, rows = chosen.number(1, 4), chosen.number(1, 3)
        style = self._widths(columns)
        if chosen.chance(0.1):
            style.append(chosen.use("table background", chosen.background()))
        cell_widths = [f"{chosen.number(1, 12)}ch", "50%", "25%"]
        collapses, line = chosen.chance(0.4), chosen.pick(["solid", "solid", "double", "dashed"])
        bordered = f"border: {line}"
        if collapses:
            if "fixed" in "".join(style):
                cell_widths = ["auto"]
            style.append(chosen.use("border-collapse", "border-collapse: collapse"))
            cell = chosen.pick([bordered, bordered, "", "border-bottom: solid",
                                "border-left: solid", f"{bordered}; border-left: hidden"])
            style += ["border: solid"] if chosen.chance(0.3) else []
        else:
            cell = chosen.pick([bordered, bordered, "", "", "padding: 0", "padding: 1lh 2ch"])
            style += self._edges()
        if cell.startswith(bordered):
            chosen.use(bordered)
        spans = cell in (bordered, "") and chosen.chance(0.5 if collapses else 0.7)
        share = 0.5 if "fixed" in "".join(style) else 0.15
        cells = Cells(depth, cell, cell_widths, share, chosen.chance(0.1))
        body = self._rows(cells, columns, rows, spans, collapses)
        body = self._columns(columns, spans, collapses) + body
        caption = self._caption() if chosen.chance(0.25) else ""
        chosen.use("table")
        return f'<table style="{"; ".join(style)}">{caption}{body}</table>'

    def boxes(self, _):
        """A table of other elements."""
        cells = " ".join(f'<span style="display: table-cell">{self._words.words(1)}</span>'
                         for _ in range(self._choices.number(1, 3)))
        row = f'<div style="display: table-row">{cells}</div>'
        return self._choices.use("display: table", f'<div style="display: table">{row}{row}</div>')

    def _edges(self):
        """Of a table whose borders are separate."""
        chosen, style = self._choices, []
        if chosen.chance(0.5):
            spacing = f"border-spacing: {chosen.cells(2)} {chosen.rows(1)}"
            style.append(chosen.use("border-spacing", spacing))
        if chosen.chance(0.2):
            edge = chosen.pick(["border: solid", "padding: 1lh 2ch", "padding-left: 1ch",
                                "border-bottom: solid; padding-top: 1lh"])
            style.append(chosen.use("table edge", edge))
        return style

    def _columns(self, columns, spans, collapses):
        """Elements for columns, if any, with what they may say: lines where these are whole ones.
        Where cells span columns, all of these have such elements, or none."""
        chosen = self._choices
        if not chosen.chance(0.3):
            return ""
        def styled(kind, sides=("left", "right")):
            choices = [chosen.background(), ""]
            if not collapses:
                choices += [f"width: {chosen.number(2, 12)}ch"] * 2
            if collapses and not spans:
                choices += [f"border-{chosen.pick(sides)}: solid"] * 4
            chosen.use(kind)
            return f' style="{chosen.pick(choices)}"'
        count = columns if spans else chosen.number(1, columns)
        sides = ("top", "bottom") if count == columns else ("left", "right")
        if chosen.chance(0.3):
            return f'<colgroup span="{count}"{styled("colgroup", sides)}/>'
        if chosen.chance(0.3):
            return f'<col span="{count}"{styled("col", sides)}/>'
        cols = "".join(f"<col{styled('col')}/>" for _ in range(count))
        return f"<colgroup{styled('colgroup')}>{cols}</colgroup>" if chosen.chance(0.4) else cols

    def _widths(self, columns):
        chosen = self._choices
        if chosen.chance(0.2):
            width = columns * chosen.number(3, 12)
            return [chosen.use("table-layout: fixed", f"table-layout: fixed; width: {width}ch")]
        style = []
        if chosen.chance(0.3):
            width = chosen.pick([f"{chosen.number(4, 60)}ch", "100%", "50%"])
            style.append(chosen.use("table width", f"width: {width}"))
        if chosen.chance(0.12):
            side = chosen.pick(["min", "max"])
            style.append(chosen.use("table limits", f"{side}-width: {chosen.number(4, 40)}ch"))
        if chosen.chance(0.15):
            margin = chosen.pick(["margin-left: auto", "margin: 1lh auto",
                                  f"margin: {chosen.rows(1)} {chosen.cells(3)}"])
            style.append(chosen.use("table margin", margin))
        return style

    def _caption(self):
        style = self._choices.pick(["text-align: left", "text-align: left", "margin: 1lh 0"])
        if self._choices.chance(0.4):
            style += self._choices.use("caption at the bottom", "; caption-side: bottom")
        return self._choices.use("caption",
                                 f'<caption style="{style}">{self._words.words(2)}</caption>')

    def _rows(self, kind, columns, rows, spans, collapses):
        taken, parts = set(), []
        for row in range(rows):
            cells = ""
            for column in range(columns):
                if (row, column) in taken:
                    continue
                lasting = rows - 1 if collapses else rows
                across, down = (self._span(taken, row, column, columns, lasting)
                                if spans and row < lasting else (1, 1))
                taken |= {(row + y, column + x) for y in range(down) for x in range(across)}
                if row > 0 and not collapses and self._choices.chance(0.07):
                    self._choices.use("missing cells")
                    break
                cells += self._cell(kind, across, down)
            parts.append(f"<tr{self._row_style(collapses and not spans)}>{cells}</tr>")
        body = self._grouped(parts, collapses and not spans)
        if not self._choices.chance(0.15):
            return body
        self._choices.use("thead and tfoot")
        head, foot = (f"<tr>{self._cell(kind, columns, 1)}</tr>" for _ in range(2))
        return f"<tfoot>{foot}</tfoot>{body}<thead>{head}</thead>"

    def _row_style(self, has_lines):
        """Of a row, or of a group of them, with lines where these are whole ones."""
        chosen, style = self._choices, []
        if chosen.chance(0.1):
            style.append(chosen.use("row background", chosen.background()))
        if chosen.chance(0.1):
            side = chosen.pick(["middle", "bottom"])
            style.append(chosen.use("row vertical-align", f"vertical-align: {side}"))
        if has_lines and chosen.chance(0.3):
            line = chosen.pick(["solid", "solid", "hidden"])
            side = chosen.pick(["top", "bottom"])
            style.append(chosen.use("row border", f"border-{side}: {line}"))
        return f' style="{"; ".join(style)}"' if style else ""

    def _grouped(self, rows, has_lines):
        """The rows, perhaps in one group or in two of them."""
        if not self._choices.chance(0.3):
            return "".join(rows)
        self._choices.use("tbody")
        parts, first = [], self._choices.number(0, len(rows) - 1)
        for part in rows[:first], rows[first:]:
            if part:
                parts.append(f"<tbody{self._row_style(has_lines)}>{''.join(part)}</tbody>")
        return "".join(parts)

    def _span(self, taken, row, column, columns, rows):
        if not self._choices.chance(0.4):
            return 1, 1
        free = next((x for x in range(column, columns) if (row, x) in taken), columns)
        return self._choices.number(1, free - column), self._choices.number(1, rows - row)

    def _cell(self, kind, across, down):
        chosen = self._choices
        style = [kind.style] if kind.style else []
        spans = chosen.use("colspan", f' colspan="{across}"') if across > 1 else ""
        spans += chosen.use("rowspan", f' rowspan="{down}"') if down > 1 else ""
        if chosen.chance(0.07):
            limit = f"{chosen.pick(['min', 'max'])}-width: {chosen.number(2, 12)}ch"
            style.append(chosen.use("cell limits", limit))
        if chosen.chance(kind.share):
            style.append(chosen.use("cell width", f"width: {chosen.pick(kind.widths)}"))
        if kind.baselines and "padding" not in kind.style:
            above = f"vertical-align: baseline; padding-top: {chosen.number(0, 2)}lh"
            style.append(chosen.use("baseline", above))
        elif chosen.chance(0.2):
            side = chosen.pick(["top", "bottom", "bottom", "middle", "baseline"])
            style.append(chosen.use("vertical-align", f"vertical-align: {side}"))
        if chosen.chance(0.05):
            style.append(chosen.use("cell background", chosen.background()))
        if "solid" in kind.style and chosen.chance(0.05):
            style.append(chosen.use("hidden cell", "visibility: hidden"))
        if chosen.chance(0.1):
            style.append(chosen.text_declaration())
        attribute = f' style="{"; ".join(style)}"' if style else ""
        attribute += f' class="{chosen.pick(["one", "two"])}"' if chosen.chance(0.2) else ""
        tag = chosen.pick(["td", "td", "td", "th"])
        return f"<{tag}{spans}{attribute}>{self._content(kind.depth, across, down)}</{tag}>"

    def _content(self, depth, across, down):
        chosen = self._choices
        text = self._words.words(chosen.number(0, 3) * (2 * across - 1))
        # What makes a spanning cell higher than its rows is shared among them in another way.
        if down == 1 and chosen.chance(0.15):
            return chosen.use("broken cell", f"{text}<br/>{self._words.words(2)}")
        if down == 1 and depth < 2 and chosen.chance(0.05):
            return chosen.use("table in a cell", self.table(depth + 1))
        if down == 1 and depth < 2 and chosen.chance(0.06):
            blocks = RIGHT_EDGE.sub(r"\1-left", self._blocks(depth + 1, 1))
            return chosen.use("blocks in a cell", blocks)
        return text
