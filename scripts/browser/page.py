"""A page and what Chromium shows of it."""
import dataclasses
import html.entities
import re


@dataclasses.dataclass
class Page:
    """`width` is in cells; `features` are those that it was generated to use."""
    seed: int
    width: int
    source: str
    features: list


@dataclasses.dataclass
class Answer:
    """`rows` are those of the page without blanks at their ends, borders as picture.BORDER.
    `paint` is the backgrounds of each row. `between`: Chromium lays at fractions of cells; the one
    row is then all letters in their order, unless some stand on one another. `fits`: no letter sticks out of the page."""
    rows: list
    between: bool = False
    fits: bool = True
    paint: list = dataclasses.field(default_factory=list)


def resolved(source):
    """A page without references by name, of which XML alone knows five."""
    return re.sub(r"&(\w+);", resolved_reference, source)


def resolved_reference(reference):
    code = html.entities.name2codepoint.get(reference[1], 0)
    return chr(code) if code > 127 else reference[0]
