#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "galley/galley.h"
#include "web/css/Sheet.h"
#include "xml/css/StyleNode.h"

namespace galley {

/// What a sheet holds. It does not change once a sheet has it.
struct Sheet::Rules {
    /// A text that rules are from.
    struct Text {
        std::string name;
        std::string css;
        Dialect dialect;
    };

    /// As they are to be shown: without control characters.
    CLI::XML::StyleList shown;
    /// As they were written.
    CLI::XML::StyleList raw;
    /// Those of the dialect `web`.
    std::vector<std::shared_ptr<web::Sheet const>> web;
    /// In the order of their rules; those of sheets that were added are theirs, too.
    std::vector<std::shared_ptr<Text const>> texts;
};

/// For the rest of the library, and the tool.
struct SheetAccess {
    /// The rules, as they were written or without control characters.
    static CLI::XML::StyleList const& rules(Sheet const& sheet, bool isRaw);
    static std::vector<std::shared_ptr<Sheet::Rules::Text const>> const& texts(Sheet const& sheet);
    /// Those of the dialect `web`, which live as long as the sheet.
    static std::vector<web::Sheet const*> webSheets(Sheet const& sheet);
    /// The error that a text of another dialect is; none where there is no such text.
    static std::vector<Diagnostic> misfits(Sheet const& sheet, Dialect dialect);
};

}  // namespace galley
