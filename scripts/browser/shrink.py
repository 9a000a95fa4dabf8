"""Makes a page smaller for as long as something stays true of it, and it is one that generate.py
could make: what galley shows in another way on purpose stays out of it."""
import copy
import re
import xml.etree.ElementTree as tree

from page import resolved


def shrink(source, stays_true):
    """The smallest page found; `stays_true` takes a list of sources and says of each."""
    source = resolved(source)
    smaller = True
    while smaller:
        smaller = False
        variants = [one for one in variants_of(source)
                    if len(one) < len(source) and is_like_generated(one)]
        for start in range(0, len(variants), 12):
            some = variants[start:start + 12]
            found = [one for one, is_true in zip(some, stays_true(some)) if is_true]
            if found:
                source, smaller = min(found, key=len), True
                break
    return source


GROUPS = ["thead", "tbody", "tfoot"]
PARENTS = {"li": ["ol", "ul"], "td": ["tr"], "th": ["tr"], "tr": ["table", *GROUPS],
           "col": ["colgroup", "table"],
           **{part: ["table"] for part in ["caption", "colgroup", *GROUPS]}}
CHILDREN = {"ol": ["li"], "ul": ["li"], "tr": ["td", "th"], "colgroup": ["col"],
            "table": ["tr", "caption", "col", "colgroup", *GROUPS],
            **{part: ["tr"] for part in GROUPS}}


def is_like_generated(source):
    """Parts of lists and tables stand in these, and markers have room."""
    return all(fits(parent, each) for parent in tree.fromstring(source).iter() for each in parent)


def fits(parent, element):
    style, around = element.get("style", ""), parent.get("style", "")
    return (parent.tag in PARENTS.get(element.tag, [parent.tag])
            and element.tag in CHILDREN.get(parent.tag, [element.tag])
            and not (parent.tag in CHILDREN and (element.tail or "").strip())
            and not (element.tag in CHILDREN and (element.text or "").strip())
            and (element.tag not in ("ol", "ul") or "padding-left: 7ch" in style)
            and ("display: list-item" not in style or "padding-left: 7ch" in around)
            and (element.tag != "img" or "alt" in element.attrib)
            and ("display: table-" not in style or "display: table" in around))


def variants_of(source):
    """Pages with something left out, those without much first."""
    root = tree.fromstring(source)
    places = [number for number, element in enumerate(root.iter())
              if element.tag not in ("html", "head", "body")]
    for change in (drop, unwrap, halve_text, drop_style, drop_word):
        for place in places:
            yield from changed(root, place, change)


def changed(root, place, change):
    count = len(list(change(*locate(copy.deepcopy(root), place))))
    for number in range(count):
        other = copy.deepcopy(root)
        for step, make in enumerate(change(*locate(other, place))):
            if step == number:
                make()
        yield tree.tostring(other, encoding="unicode")


def locate(root, place):
    element = list(root.iter())[place]
    return next(one for one in root.iter() if element in list(one)), element


def drop(parent, element):
    def make():
        put_text(parent, element, element.tail or "")
        parent.remove(element)
    yield make


def unwrap(parent, element):
    def make():
        index = list(parent).index(element)
        inner = list(element)
        put_text(parent, element, element.text or "")
        if inner:
            inner[-1].tail = (inner[-1].tail or "") + (element.tail or "")
        else:
            put_text(parent, element, element.tail or "")
        parent[index:index + 1] = inner
    yield make


def put_text(parent, before, text):
    index = list(parent).index(before)
    if index:
        parent[index - 1].tail = (parent[index - 1].tail or "") + text
    else:
        parent.text = (parent.text or "") + text


def halve_text(_, element):
    for name in ("text", "tail"):
        text = getattr(element, name) or ""
        half = len(text) // 2
        for part in (text[:half], text[half:]) if text else ():
            yield lambda name=name, part=part: setattr(element, name, part)


def drop_word(_, element):
    for name in ("text", "tail") if element.tag != "style" else ():
        text = getattr(element, name) or ""
        for word in re.finditer(r"\S+\s*", text):
            rest = text[:word.start()] + text[word.end():]
            yield lambda name=name, rest=rest: setattr(element, name, rest)


def drop_style(_, element):
    for name in [name for name in element.attrib if name != "style"]:
        yield lambda name=name: element.attrib.pop(name)
    parts = element.get("style", "").split("; ")
    for number in range(len(parts)) if "style" in element.attrib else ():
        rest = "; ".join(parts[:number] + parts[number + 1:])
        yield lambda rest=rest: element.set("style", rest) if rest else element.attrib.pop("style")
    rules = (element.text or "").splitlines(True) if element.tag == "style" else []
    for number in range(len(rules)):
        rest = "".join(rules[:number] + rules[number + 1:])
        yield lambda rest=rest: setattr(element, "text", rest)
