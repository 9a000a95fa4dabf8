#include "galley/page.h"

#include "galley/SheetAccess.h"
#include "galley/convert.h"
#include "galley/dialect.h"
#include "galley/formats/PageWriter.h"
#include "galley/terminal/terminal.h"
#include "galley/webPage.h"
#include "xml/xml.h"

namespace galley {

Options settle(Options options, std::FILE* out) {
    if (options.width == 0) options.width = terminalWidth(out);
    if (options.color == Color::automatic) {
        options.color = isColorWelcome(out) ? Color::always : Color::never;
    }
    bool const isAnsi = options.format == Format::ansi;
    if (options.links == Links::automatic) {
        options.links = !isAnsi || isTerminal(out) ? Links::always : Links::never;
    }
    if (isAnsi && options.color == Color::never) options.format = Format::plain;
    options.raw = options.raw && isAnsi;
    return options;
}

Result<void> makePage(String& page, String& markup, Sheet const& sheet, Options const& options) {
    return guarded(options.name, [&]() -> Result<void> {
        Result<Dialect> const dialect = dialectOf(markup.view(), options);
        if (!dialect) return Result<void>(dialect.errors());
        if (*dialect == Dialect::web) return makeWebPage(page, markup.view(), sheet, options);
        if (auto misfits = SheetAccess::misfits(sheet, Dialect::core); !misfits.empty()) {
            return Result<void>(std::move(misfits));
        }
        auto made = convert(page, markup, options, [&](String const& cleaned) {
            CLI::XML::StyleList const& rules = SheetAccess::rules(sheet, options.raw);
            return CLI::XML::xmlToText(page, cleaned, rules, options.width);
        });
        if (made) rewritePage(page, options);
        return made;
    });
}

}  // namespace galley
