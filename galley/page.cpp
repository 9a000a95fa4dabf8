#include "galley/page.h"

#include "galley/SheetAccess.h"
#include "galley/convert.h"
#include "galley/formats/formats.h"
#include "galley/formats/plain.h"
#include "galley/terminal/terminal.h"
#include "galley/webPage.h"
#include "xml/xml.h"

namespace galley {

namespace {

/// Without folders.
std::string_view titleOf(std::string_view name) { return name.substr(name.find_last_of('/') + 1); }

void applyFormat(String& page, Options const& options) {
    switch (options.format) {
        case Format::ansi:
            break;
        case Format::plain:
            makePlain(page);
            break;
        case Format::html:
            makeHtml(page, {options.theme, options.standalone, titleOf(options.name)});
            break;
        case Format::svg:
            makeSvg(page, options.theme);
            break;
    }
}

}  // namespace

Options settle(Options options, std::FILE* out) {
    if (options.width == 0) options.width = terminalWidth(out);
    if (options.color == Color::automatic) {
        options.color = isColorWelcome(out) ? Color::always : Color::never;
    }
    bool const isAnsi = options.format == Format::ansi;
    if (isAnsi && options.color == Color::never) options.format = Format::plain;
    options.raw = options.raw && isAnsi;
    return options;
}

Result<void> makePage(String& page, String& markup, Sheet const& sheet, Options const& options) {
    if (options.dialect == Dialect::web) return makeWebPage(page, markup.view(), sheet, options);
    return guarded(options.name, [&]() -> Result<void> {
        if (auto misfits = SheetAccess::misfits(sheet, Dialect::core); !misfits.empty()) {
            return Result<void>(std::move(misfits));
        }
        auto made = convert(page, markup, options, [&](String const& cleaned) {
            CLI::XML::StyleList const& rules = SheetAccess::rules(sheet, options.raw);
            return CLI::XML::xmlToText(page, cleaned, rules, options.width);
        });
        if (made) applyFormat(page, options);
        return made;
    });
}

}  // namespace galley
