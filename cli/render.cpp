#include "cli/render.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/dumpTree.h"
#include "cli/files.h"
#include "cli/report.h"
#include "galley/checkMarkup.h"
#include "galley/dialect.h"
#include "galley/failure.h"
#include "galley/page.h"

namespace {

Rendering told(ExitStatus status, std::vector<galley::Diagnostic> const& diagnostics) {
    Rendering rendering;
    rendering.status = status;
    rendering.error = textOf(diagnostics);
    return rendering;
}

/// Whether a document is one whose controls are wanted on the page, and never are there.
bool isRawInVain(String const& markup, galley::Options const& options) {
    galley::Result<galley::Dialect> const dialect = galley::dialectOf(markup.view(), options);
    return dialect && *dialect == galley::Dialect::web;
}

Rendering convert(std::string const& document, String& markup, galley::Sheet const& sheet,
                  Manner const& manner) {
    galley::Options options = manner.page;
    options.name = inputName(document);
    if (manner.isRaw && isRawInVain(markup, options)) {
        return told(ExitStatus::InputAtFault,
                    galley::failure(options.name, "--raw is for the dialect core"));
    }
    if (manner.isCheck) {
        auto const found = galley::checkMarkup(markup, sheet, options);
        return told(statusOf(found, manner.isStrict), found);
    }
    Rendering rendering;
    auto const result = manner.product == Product::Page
                            ? galley::makePage(rendering.text, markup, sheet, options)
                            : dumpTree(rendering.text, markup, manner.product, sheet, options);
    if (!result) return told(ExitStatus::InputAtFault, result.errors());
    return rendering;
}

/// What `work` returns, or that there was no memory for it.
template <class Work>
Rendering guarded(std::string const& document, Work const& work) {
    try {
        return work();
    } catch (std::bad_alloc const&) {
        return told(ExitStatus::InputAtFault,
                    galley::failure(inputName(document), "Out of memory"));
    }
}

}  // namespace

Manner::Manner(Options const& options)
    : product(options.product),
      isCheck(options.isCheck),
      isStrict(options.isStrict),
      isRaw(options.isRaw) {
    page.width = options.width.value_or(0);
    page.format = options.format;
    page.color = options.color;
    page.links = options.links;
    page.ambiguousWidth = options.ambiguousWidth;
    page.asciiFrames = options.hasAsciiFrames;
    page.dialect = options.dialect;
    page.theme = options.theme;
    page.raw = options.isRaw;
    page.standalone = !options.files.empty();
    // A file is no terminal, whatever standard output is.
    bool const isFile = page.standalone && page.color == galley::Color::automatic;
    if (isFile) page.color = galley::Color::never;
    bool const isSequences = page.standalone && page.format == galley::Format::ansi;
    if (isSequences && page.links == galley::Links::automatic) page.links = galley::Links::never;
    page = galley::settle(page, stdout);
    if (options.maxWidth) page.width = std::min(page.width, *options.maxWidth);
}

Rendering render(std::string const& document, galley::Sheet const& sheet, Manner const& manner) {
    return guarded(document, [&] {
        String markup;
        if (int const fault = readFile(document, markup)) {
            return told(ExitStatus::FileAtFault,
                        galley::failure(inputName(document), std::strerror(fault)));
        }
        return convert(document, markup, sheet, manner);
    });
}

Rendering renderRead(std::string const& document, String markup, galley::Sheet const& sheet,
                     Manner const& manner) {
    return guarded(document, [&] { return convert(document, markup, sheet, manner); });
}
