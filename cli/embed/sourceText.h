#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The source of a function that prints a page, declared in the header of its name: the bytes of a
/// document and its sheets, exactly, and a call of `printPage` with them.
std::string sourceText(std::string const& function, std::string_view document,
                       std::vector<std::string_view> const& sheets);
