#pragma once

#include <string>
#include <vector>

#include "galley/dialect.h"

/// A file that is compiled into a program.
struct Input {
    std::string name;
    std::string text;
};

/// A document with its sheets.
struct Page {
    Input document;
    std::vector<Input> sheets;
    /// Of all of them.
    galley::Dialect dialect = galley::s_defaultDialect;
};

/// The source of a function that prints a page, declared in the header of its name: the bytes of a
/// document and its sheets, exactly, and a call of the library with them.
std::string sourceText(std::string const& function, Page const& page);
