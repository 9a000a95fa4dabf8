#!/usr/bin/env python3
"""Prints a page by way of the library for C, with nothing but Python itself.

    page.py [LIBRARY]    LIBRARY is libgalley-c.so.0 where it is not installed
"""

import ctypes
import sys

MARKUP = """
<h1>Backup finished</h1>
<p>All {files} files under <b>{folder}</b> are safe.</p>
"""
CSS = b"h1 { color: green } p { margin-left: 2ch }"


class Options(ctypes.Structure):
    _fields_ = [
        ("size", ctypes.c_size_t),
        ("width", ctypes.c_uint),
        ("color", ctypes.c_int),
        ("format", ctypes.c_int),
        ("theme", ctypes.c_int),
        ("dialect", ctypes.c_int),
        ("standalone", ctypes.c_int),
        ("raw", ctypes.c_int),
        ("name", ctypes.c_char_p),
    ]


class Galley:
    """What this program uses of galley/c.h."""

    def __init__(self, path):
        library = ctypes.CDLL(path)
        for name, result, arguments in [
            ("sheet_new", ctypes.c_void_p, ""),
            ("sheet_add", ctypes.c_int, "psnsip"),
            ("sheet_free", None, "p"),
            ("render", ctypes.c_void_p, "snpppp"),
            ("escape", ctypes.c_void_p, "sn"),
            ("report_text", ctypes.c_char_p, "pn"),
            ("report_free", None, "p"),
            ("free", None, "p"),
        ]:
            kinds = {"p": ctypes.c_void_p, "s": ctypes.c_char_p, "n": ctypes.c_size_t, "i": ctypes.c_int}
            function = getattr(library, "galley_" + name)
            function.restype = result
            function.argtypes = [kinds[kind] for kind in arguments]
            setattr(self, name, function)

    def take(self, text):
        """A text of the library's as one of Python's."""
        copy = ctypes.string_at(text).decode()
        self.free(text)
        return copy

    def escaped(self, text):
        data = text.encode()
        return self.take(self.escape(data, len(data)))

    def page(self, markup, css, name):
        """The page of a document, or ValueError with what is at fault in it or its sheet."""
        data = markup.encode()
        options = Options(size=ctypes.sizeof(Options), name=name.encode())
        report = ctypes.c_void_p()
        sheet = self.sheet_new()
        page = None
        if self.sheet_add(sheet, css, len(css), b"page.css", 0, ctypes.byref(report)):
            page = self.render(data, len(data), sheet, ctypes.byref(options), None, ctypes.byref(report))
        self.sheet_free(sheet)
        if page:
            return self.take(page)
        text = self.report_text(report, 0).decode()
        self.report_free(report)
        raise ValueError(text)


def main():
    galley = Galley(sys.argv[1] if len(sys.argv) > 1 else "libgalley-c.so.0")
    markup = MARKUP.format(files=412, folder=galley.escaped("/home/<you>"))
    try:
        sys.stdout.write(galley.page(markup, CSS, "page.xml"))
    except ValueError as error:
        sys.exit(str(error))


if __name__ == "__main__":
    main()
