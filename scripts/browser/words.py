"""Text with inline elements: words of random letters, so that each has its own place."""
import picture

INLINE = ("a abbr b strong i em cite var dfn u ins s del code kbd samp mark small q span sub "
          "sup").split()
WORDS = ("long long emoji hyphen marked shy zwsp nbsp capitals reference punctuation "
         "punctuation").split()
PUNCTUATION = ("1, 1. (1) 1/2 1! 1:2 “1” 1's 1;2 1.2 1=2 1% 1?2 1+2 1&amp;2 1(2) 1-\u20602 1–2 1…2 1—2 "
               "漢“1” 漢“漢”漢 1?(2) 1-(2)").split()
REFERENCES = ("&eacute; &uuml; &ntilde; &lt; &quot; &shy; &nbsp; &#233; &#xE9; &#65; &#x7a; &#xAD; "
              "&#160;").split()
RUNS = ("inline inline inline joined nested edge edge styled empty quote image unseen br br "
        "wbr").split()


class Words:
    """Makes text by the choices that it is given."""

    def __init__(self, choices):
        self._choices = choices

    def text(self, most=16):
        runs = "".join(self._run() for _ in range(self._choices.number(1, most)))
        return runs.strip() if self._choices.chance(0.8) else runs

    def words(self, count):
        return " ".join(self.word() for _ in range(count))

    def _run(self):
        chosen = self._choices
        space = chosen.pick([" ", " ", " ", "\n", "  "])
        if chosen.chance(0.7):
            return self.word() + space
        kind, tag = chosen.pick(RUNS), chosen.pick(INLINE)
        words = self.words(chosen.number(1, 3))
        chosen.use(f"inline: {kind}")
        if kind == "nested":
            return f"<{tag}>{words} <b>{self.word()} </b> {self.word()}</{tag}>{space}"
        if kind == "edge":
            style = chosen.edge_declaration()
            if chosen.chance(0.2):
                words += chosen.use("br before an end tag", "<br/>")
            return f'<{tag} style="{style}">{words}</{tag}>{chosen.pick([space, ""])}'
        if kind == "styled":
            style = chosen.inline_declaration()
            return f'<{tag} style="{style}">{words}</{tag}>{chosen.pick([space, ""])}'
        known = f' class="{chosen.pick(["one", "two", "three"])}"' if chosen.chance(0.4) else ""
        return {"inline": f"<{tag}{known}>{words}</{tag}>{space}",
                "joined": self._joined(tag, words),
                "empty": f"<{tag}></{tag}>{space}", "wbr": f"{words}<wbr/>{words}{space}",
                "quote": f"<q>{words} <q>{self.word()}</q></q>{space}",
                "image": f'<img alt="{self._letters(7)} {self._letters(7)}"/>{space}',
                "unseen": chosen.pick(["<script>1</script>", f"<template>{words}</template>"]),
                "br": chosen.pick(["<br/>", " <br/> ", "<br/><br/>"])}[kind]

    def word(self):
        chosen = self._choices
        if chosen.chance(0.75):
            return self._letters(7)
        kind = chosen.pick(WORDS)
        one, two = self._letters(6), self._letters(6)
        chosen.use(f"text: {kind}")
        if kind == "punctuation":
            return chosen.pick(PUNCTUATION).replace("1", one).replace("2", two)
        if kind == "long":
            return self.long_word()
        if kind == "capitals":
            return one.upper() + chosen.pick(["", two, "-" + two, "É" + two])
        between = {"hyphen": "-", "emoji": chosen.pick(picture.EMOJI),
                   "marked": chosen.pick(picture.MARKED), "shy": "\u00ad",
                   "zwsp": "\u200b", "nbsp": chosen.pick("\u00a0\u00a0\u202f\u2007"),
                   "reference": chosen.pick(REFERENCES)}
        return one + between[kind] + two

    def long_word(self):
        """Of Latin letters, or of wide ones."""
        if self._choices.chance(0.5):
            return self._letters(40)
        return self._wide(16)

    def _joined(self, tag, words):
        """An element that no white space parts from what is around it."""
        before = self._choices.pick(["", "", f"{self._letters(6)}-", self._wide(4)])
        within = self._choices.pick([words, words, self._wide(4)])
        return f"{before}<{tag}>{within}</{tag}>{self._choices.pick(['', self._wide(4)])}"

    def even_word(self):
        """Of an even number of letters."""
        half = self._letters(3)
        return half + half[::-1]

    def _wide(self, most):
        count = self._choices.number(1, most)
        return "".join(self._choices.pick(picture.WIDE) for _ in range(count))

    def _letters(self, most):
        return "".join(self._choices.pick("abcdefghijklmnopqrstuvwxyz")
                       for _ in range(self._choices.number(1, most)))
