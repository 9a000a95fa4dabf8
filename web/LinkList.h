#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "web/flow/BlockSink.h"

namespace galley::web {

/// Addresses that links of a page have numbers for, from 1.
class LinkList {
public:
    /// The number of an address: the same wherever a link leads there.
    unsigned numberOf(std::string_view address);

    /// Adds a row for each address that has been numbered since the last time, with its number
    /// before it, to what has the given style. The list outlives the sink's content.
    void moveTo(BlockSink& sink, Style const& around);

private:
    std::unordered_map<std::string, unsigned> numbers;
    /// By their numbers.
    std::vector<std::string> addresses;
    std::size_t written = 0;
    std::deque<Style> styles;
};

}  // namespace galley::web
