"""Whether the comparison notices what is wrong: pages laid out with a feature taken away, and rows
with one thing changed."""
import copy
import random
import re

import compare
from picture import BORDER

# A feature, what stands for it in a page, and what stands there without it.
FAULTS = [
    ("margins", r"margin(-\w+)?: [^;\"}]*", "margin: 0"),
    ("margins that do not collapse", r"<div(?= |>)", "<div style='padding-top: 1px' "),
    ("padding", r"padding(-\w+)?: [^;\"}]*", ""),
    ("borders", r"border(-\w+)?: (\w+ )?solid", "border: none"),
    ("widths", r"(?<!-)width: [^;\"}]*", ""),
    ("limits of widths", r"(min|max)-width: [^;\"})]*", ""),
    ("text-align: right", "text-align: right", ""),
    ("text-align: center", "text-align: center", ""),
    ("text-align: justify", "text-align: justify", ""),
    ("text-indent", "text-indent", "x"),
    ("text-transform", "text-transform", "x"),
    ("white-space", "white-space", "x"),
    ("tab-size", "tab-size", "x"),
    ("overflow-wrap", "overflow-wrap", "x"),
    ("word-break", "word-break", "x"),
    ("visibility", "visibility", "x"),
    ("display", "display", "x"),
    ("list-style-type", "list-style-type", "x"),
    ("list-style-position", "list-style-position", "x"),
    ("start", " start=", " x="),
    ("value", " value=", " x="),
    ("table-layout", "table-layout", "x"),
    ("border-collapse", "border-collapse", "x"),
    ("border-spacing", "border-spacing", "x"),
    ("caption-side", "caption-side", "x"),
    ("vertical-align", "vertical-align", "x"),
    ("colspan", "colspan", "x"),
    ("rowspan", "rowspan", "x"),
    ("thead", "thead", "tbody"),
    ("!important", "!important", ""),
    ("@media", "@media", "@x"),
    (":first-child", ":first-child", ":last-child"),
    (":last-child", ":last-child", ":first-child"),
    (":nth-child", r":nth-child\(.*?\)", ""),
    ("child", " > ", " "),
    ("soft hyphens", "\u00ad", ""),
    ("U+200B", "\u200b", ""),
    ("wbr", "<wbr */>", ""),
    ("br", "<br */>", " "),
    ("no-break spaces", "\u00a0", " "),
    ("white space", r"(?<=\w)\s+(?=<)", ""),
    ("empty items", "<li></li>", ""),
    ("hr", "<hr", "<p"),
]


def self_test(browser, pairs):
    """Prints what it found; whether all is well."""
    wrong = [page.seed for page, answer in pairs
             if compare.difference(page, answer, printed(page, answer)) is not None]
    print(f"{len(pairs)} pages, {len(wrong)} of them differ from themselves {wrong or ''}")
    good = not wrong
    pairs = [pair for pair in pairs if not pair[1].between]
    for name, pattern, instead in FAULTS:
        noticed, tried = count_noticed(browser, pairs, re.compile(pattern), instead)
        good = good and noticed > 0
        print(f"without {name}: {noticed} of {tried} pages differ")
    for change in (move, lose_row, add_row, mistype, lose_border):
        noticed, tried = count_changed(pairs, change)
        good = good and noticed == tried > 0
        print(f"{change.__name__}: {noticed} of {tried} noticed")
    good = test_paint(pairs) and good
    return good


def test_paint(pairs):
    """Backgrounds as sequences: right ones, and one of them a cell longer."""
    pairs = [(page, answer) for page, answer in pairs if any(answer.paint)]
    right = [compare.paint_difference(page, answer, painted(answer)) is None
             for page, answer in pairs]
    noticed = 0
    for page, answer in pairs:
        other = copy.deepcopy(answer)
        run = next(runs[-1] for runs in other.paint if runs)
        run[0] -= 1 if run[0] else -1
        noticed += compare.paint_difference(page, answer, painted(other)) is not None
    print(f"backgrounds: {sum(right)} of {len(pairs)} right, {noticed} wrong ones noticed")
    return all(right) and noticed > 0


def painted(answer):
    """Rows in which only the backgrounds are right."""
    rows = []
    for runs in answer.paint:
        row, end = "", 0
        for start, stop, colour in runs:
            red, green, blue = (int(colour[at:at + 2], 16) for at in (1, 3, 5))
            row += " " * (start - end)
            row += f"\x1b[1;48;2;{red};{green};{blue};31m{' ' * (stop - start)}\x1b[0m"
            end = stop
        rows.append(row)
    return rows


def printed(page, answer):
    """What galley would print."""
    if not answer.between:
        return answer.rows
    clusters = [cell for cell in compare.cells(answer.rows[0]) if cell]
    step = max(page.width // 2, 1)
    return ["".join(clusters[start:start + step]) for start in range(0, len(clusters), step)]


def count_noticed(browser, pairs, pattern, instead):
    tried = [(page, answer, pattern.sub(instead, page.source)) for page, answer in pairs
             if pattern.search(page.source)]
    without = browser.answer([(source, page.width) for page, _, source in tried])
    noticed = [other.between or compare.difference(page, answer, other.rows) is not None
               for (page, answer, _), other in zip(tried, without)]
    return sum(noticed), len(tried)


def count_changed(pairs, change):
    changed = [(page, answer, change(list(answer.rows), random.Random(page.seed)))
               for page, answer in pairs]
    changed = [one for one in changed if one[2] is not None]
    noticed = [compare.difference(*one) is not None for one in changed]
    return sum(noticed), len(noticed)


def place(rows, kind, chance):
    places = [(row, column) for row, text in enumerate(rows) for column, cell in enumerate(text)
              if kind(cell)]
    return chance.choice(places) if places else None


def replace(rows, found, change):
    if found is None:
        return None
    row, column = found
    rows[row] = rows[row][:column] + change(rows[row][column]) + rows[row][column + 1:]
    return rows


def move(rows, chance):
    return replace(rows, place(rows, str.isalpha, chance), lambda cell: " " + cell)


def mistype(rows, chance):
    return replace(rows, place(rows, str.isalpha, chance), lambda cell: "z" if cell == "y" else "y")


def lose_border(rows, chance):
    return replace(rows, place(rows, BORDER.__eq__, chance), lambda cell: " ")


def lose_row(rows, chance):
    if rows:
        del rows[chance.randrange(len(rows))]
        return rows
    return None


def add_row(rows, chance):
    rows.insert(chance.randint(0, len(rows)), "")
    return rows
