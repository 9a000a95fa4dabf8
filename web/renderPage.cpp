#include "web/renderPage.h"

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
    PageBuilder builder(defaultSheet(), sheets, media, rows, problems);
    if (!readDocument(markup, builder, problems)) return false;
    builder.finish();
    return true;
}

}  // namespace galley::web
