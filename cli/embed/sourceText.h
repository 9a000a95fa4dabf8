#pragma once

#include <string>
#include <vector>

/// A file that is compiled into a program.
struct Input {
    std::string name;
    std::string text;
};

/// The source of a function that prints a page, declared in the header of its name: the bytes of a
/// document and its sheets, exactly, and a call of the library with them.
std::string sourceText(std::string const& function, Input const& document,
                       std::vector<Input> const& sheets);
