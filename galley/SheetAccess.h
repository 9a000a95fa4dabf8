#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "galley/galley.h"
#include "xml/css/StyleNode.h"

namespace galley {

/// What a sheet holds. It does not change once a sheet has it.
struct Sheet::Rules {
    /// A text that rules are from.
    struct Text {
        std::string name;
        std::string css;
    };

    /// As they are to be shown: without control characters.
    CLI::XML::StyleList shown;
    /// As they were written.
    CLI::XML::StyleList raw;
    /// In the order of their rules; those of sheets that were added are theirs, too.
    std::vector<std::shared_ptr<Text const>> texts;
};

/// For the rest of the library, and the tool.
struct SheetAccess {
    /// The rules, as they were written or without control characters.
    static CLI::XML::StyleList const& rules(Sheet const& sheet, bool isRaw);
    static std::vector<std::shared_ptr<Sheet::Rules::Text const>> const& texts(Sheet const& sheet);
};

}  // namespace galley
