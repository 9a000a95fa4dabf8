"""Small tables that cells spanning columns or rows decide, or how high cells beside them are, with
columns and rows of whole cells."""

KINDS = "content content narrow fixed share rest lasting high".split()


def spanning_table(chosen, words):
    kind = chosen.pick(KINDS)
    gap = chosen.pick([0, 4]) if kind == "rest" else 2 * chosen.number(0, 2)
    style = f"border-spacing: {gap}ch 0"
    if kind in ("fixed", "share", "rest"):
        style += "; width: 40ch"
    if kind == "fixed":
        style += "; table-layout: fixed"
    chosen.use("spanning table")
    return f'<table style="{style}">{rows(kind, chosen, words)}</table>'


def rows(kind, chosen, words):
    """`wide` and its reverse ask for as much room as one another, an even number of cells."""
    wide = "".join(words.even_word() for _ in range(chosen.number(2, 4)))
    width = 2 * chosen.number(3, 7)
    cell = f"<td>{chosen.pick('abcdef')}</td>"
    if kind == "content":
        return f'<tr><td colspan="2">{wide}</td></tr><tr>{cell}{cell}</tr>'
    if kind == "narrow":
        both = f'<tr><td colspan="3">{wide[::-1]}</td></tr><tr><td colspan="2">{wide}</td>'
        return f"{both}{cell}</tr><tr>{cell}{cell}{cell}</tr>"
    if kind == "fixed":
        own = chosen.pick(["", f'<col style="width: {width - 2}ch"/>'])
        return f'{own}<tr><td colspan="2" style="width: {width}ch">a</td>{cell}</tr>'
    if kind == "share":
        return f'<tr><td colspan="2" style="width: 50%">a</td>{cell}</tr><tr>{cell * 3}</tr>'
    if kind == "rest":
        return '<tr><td style="width: 75%">a</td><td style="width: 50%">b</td></tr>'
    if kind == "high":
        row, own = chosen.pick([("middle", "inherit"), ("top", "middle"), ("bottom", "inherit")])
        text = f'<td style="vertical-align: {own}">{wide[0]}</td>'
        return f'<tr style="vertical-align: {row}">{text}<td>a<br/>b<br/>c</td></tr>'
    lasting = f'<td rowspan="{chosen.pick([0, 4])}" style="vertical-align: top">{wide[0]}</td>'
    group = f"<tr>{lasting}{cell}</tr>" + f"<tr>{cell}</tr>" * chosen.number(1, 2)
    return f"<tbody>{group}</tbody><tbody><tr>{cell}</tr></tbody>"
