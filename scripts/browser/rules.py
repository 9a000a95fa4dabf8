"""Makes the rules of a page's own sheet."""
import re
import xml.etree.ElementTree as tree

from choices import CLASSES
from words import INLINE

SELECTORS = "type class id list descendant child first last nth both classes any".split()


def make_rules(chosen, width, body):
    """Rules whose selectors are taken from elements of the page."""
    root = tree.fromstring(body)
    parents = {child: parent for parent in root.iter() for child in parent}
    rules = ""
    for _ in range(chosen.number(1, 4)):
        element = chosen.pick(list(parents))
        for declaration in make_declarations(chosen, element):
            rule = f"{make_selector(chosen, element, parents)} {{ {declaration} }}"
            if chosen.chance(0.3):
                rule = f"@media {make_query(chosen, width)} {{ {rule} }}"
            if chosen.chance(0.1):
                rule += chosen.use("comment", "/* } p { margin-left: 3ch } */")
            rules += rule + "\n"
    return rules


def make_query(chosen, width):
    bound = chosen.use("@media by width", chosen.pick(["min-width", "max-width"]))
    near = 8 * max(1, width + chosen.number(-2, 2))
    query = f"({bound}: {near}px)"
    if chosen.chance(0.5):
        return query
    kind = chosen.pick(["type", "not", "list", "exact"])
    chosen.use(f"@media: {kind}")
    return {"type": f"{chosen.pick(['screen', 'all', 'print', 'only screen'])} and {query}",
            "not": f"not {chosen.pick(['screen', 'print'])} and {query}",
            "list": f"print, {query}",
            "exact": f"(width: {chosen.pick([8 * width, 8 * width, near])}px)"}[kind]


def make_declarations(chosen, element):
    """For one rule, or for several that contend about one property, also with the element."""
    if chosen.chance(0.5):
        block = element.tag not in [*INLINE, "img"]
        kind = chosen.block_declaration if block else chosen.edge_declaration
        return [chosen.pick([chosen.text_declaration, kind])()]
    chosen.use("cascade")
    styled = re.findall(r"(?:margin|padding)[\w-]*(?=:)", element.get("style", ""))
    name = chosen.pick(styled or ["margin-left", "padding-left"])
    return [f"{name}: {16 * chosen.number(0, 3)}px"
            + (chosen.use("!important", " !important") if chosen.chance(0.4) else "")
            for _ in range(chosen.number(1, 3))]


def make_selector(chosen, element, parents):
    kind, tag, parent = chosen.pick(SELECTORS), element.tag, parents[element]
    classes = element.get("class", chosen.pick(CLASSES)).split()
    one = "." + chosen.pick(classes)
    nth = chosen.pick([str(list(parent).index(element) + 1), "odd", "even", "3n+1", "-n+2", "n+2"])
    chosen.use(f"selector: {kind}")
    above = parents.get(parent, parent).tag
    near = chosen.pick([parent.tag, above])
    return {"type": tag, "class": one, "id": f"#{element.get('id', 'one')}", "list": f"hr, {one}",
            "descendant": f"{above} {tag}", "child": f"{near} > {tag}",
            "first": f"{tag}:first-child", "last": f"{tag}:last-child",
            "nth": f"{tag}:nth-child({nth})", "both": tag + one,
            "classes": f".{'.'.join(classes)}", "any": f"{near} > *"}[kind]
