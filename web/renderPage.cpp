#include "web/renderPage.h"

#include <string>

#include "web/PageBuilder.h"
#include "web/defaultSheet.h"
#include "web/markup/readDocument.h"

namespace galley::web {

namespace {

/// The sheet under all others, which is read once.
Sheet const& defaultSheet() {
    static Sheet const s_sheet = [] {
        std::vector<Problem> none;
        return Sheet::parse(defaultSheetText(), none);
    }();
    return s_sheet;
}

}  // namespace

bool renderPage(std::string_view markup, std::span<Sheet const* const> sheets, Media const& media,
                RowSink& rows, std::vector<Problem>& problems) {
    PageBudget budget(markup.size());
    PageBuilder builder(defaultSheet(), sheets, media, rows, budget, problems);
    try {
        if (!readDocument(markup, builder, problems)) return false;
        builder.finish();
        return true;
    } catch (PageTooLarge const&) {
        problems.push_back(
            {Problem::Kind::error, Problem::s_nowhere,
             "Page too large: more than " + std::to_string(budget.cells()) + " cells"});
        return false;
    }
}

}  // namespace galley::web
