#include "galley/formats/PageWriter.h"

#include <utility>

#include "galley/formats/AnsiWriter.h"
#include "galley/formats/HtmlWriter.h"
#include "galley/formats/PlainWriter.h"
#include "galley/formats/SvgWriter.h"
#include "galley/terminal/readRows.h"

namespace galley {

namespace {

std::unique_ptr<PageWriter> makeWriter(String& page, Options const& options, ColourDepth depth,
                                       CellRule rule) {
    switch (options.format) {
        case Format::plain:
            return std::make_unique<PlainWriter>(page);
        case Format::html:
            return std::make_unique<HtmlWriter>(page, options, rule);
        case Format::svg:
            return std::make_unique<SvgWriter>(page, options.theme, rule);
        case Format::ansi:
            break;
    }
    return std::make_unique<AnsiWriter>(page, depth);
}

}  // namespace

std::unique_ptr<PageWriter> makePageWriter(String& page, Options const& options,
                                           ColourDepth depth) {
    bool const isAmbiguousWide = options.ambiguousWidth > 1;
    return makeWriter(page, options, depth,
                      isAmbiguousWide ? CellRule::wideClusters : CellRule::clusters);
}

void rewritePage(String& page, Options const& options) {
    if (options.format == Format::ansi) return;
    if (options.format == Format::plain) return makePlain(page);
    String written;
    auto const writer = makeWriter(written, options, ColourDepth::none, CellRule::characters);
    readRows(page.view(), *writer);
    writer->finish();
    page = std::move(written);
}

}  // namespace galley
