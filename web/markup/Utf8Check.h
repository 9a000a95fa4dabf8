#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "web/Problem.h"

namespace galley::web {

/// Warns of what is no UTF-8 in a document, once a line.
class Utf8Check {
public:
    /// Document and list must outlive it.
    Utf8Check(std::string_view markup, std::vector<Problem>& found)
        : source(markup), problems(found) {}

    /// Checks a part of the document, behind all that was checked before. It begins and ends at
    /// bytes of ASCII, or where the document does.
    void check(std::string_view part, std::size_t offset);

private:
    std::string_view source;
    std::vector<Problem>& problems;
    /// Behind the line of the last warning.
    std::size_t nextLine = 0;
};

}  // namespace galley::web
