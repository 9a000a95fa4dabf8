#include "web/renderPage.h"

#include <string>

#include "web/PageBuilder.h"
#include "web/TreeDumper.h"
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

/// Reads a document into a builder for `rows`, by way of the handler that `wrap` makes of it.
template <class Wrap>
bool read(std::string_view markup, std::span<Sheet const* const> sheets, Media const& media,
          RowSink& rows, std::vector<Problem>& problems, Wrap const& wrap,
          DocumentInfo* info = nullptr) {
    PageBudget budget(markup.size());
    PageBuilder builder(defaultSheet(), sheets, media, rows, budget, problems);
    auto&& handler = wrap(builder);
    try {
        if (!readDocument(markup, handler, problems)) return false;
        builder.finish();
        if (info != nullptr) *info = builder.info();
        return true;
    } catch (PageTooLarge const& fault) {
        problems.push_back({Problem::Kind::error, Problem::s_nowhere,
                            std::string("Page too large: ") + (fault.isRow ? "a row of " : "") +
                                "more than " + std::to_string(fault.cells) + " cells"});
        return false;
    }
}

class NoRows final : public RowSink {
public:
    void take(Row const& /*row*/) override {}
};

}  // namespace

bool renderPage(std::string_view markup, std::span<Sheet const* const> sheets, Media const& media,
                RowSink& rows, std::vector<Problem>& problems, DocumentInfo* info) {
    auto const itself = [](PageBuilder& builder) -> PageBuilder& { return builder; };
    return read(markup, sheets, media, rows, problems, itself, info);
}

bool dumpTree(std::string_view markup, std::span<Sheet const* const> sheets, Media const& media,
              std::string& tree, std::vector<Problem>& problems) {
    NoRows rows;
    auto const dumper = [&tree](PageBuilder& builder) { return TreeDumper(builder, tree); };
    return read(markup, sheets, media, rows, problems, dumper);
}

}  // namespace galley::web
