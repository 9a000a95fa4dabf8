"""A page and what Chromium shows of it."""
import dataclasses


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
