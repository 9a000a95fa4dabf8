#include "cli/terminal/printPage.h"

#include <new>

#include "base/append.h"
#include "cli/terminal/addSheet.h"
#include "cli/terminal/controls.h"
#include "cli/terminal/plain.h"
#include "cli/terminal/terminal.h"
#include "xml/xml.h"

namespace CLI::XML {

namespace {

String withoutControls(std::string_view bytes) {
    String text;
    append(text, bytes);
    replaceControls(text);
    return text;
}

bool tryToPrint(std::FILE* out, std::string_view document,
                std::initializer_list<std::string_view> sheets) {
    StyleList styles;
    for (std::string_view const sheet : sheets) {
        if (!addSheet(styles, withoutControls(sheet))) return false;
    }
    String page;
    if (!xmlToText(page, withoutControls(document), styles, terminalWidth(out))) return false;
    repairCharacters(page);
    if (!isColorWelcome(out)) makePlain(page);
    std::string_view const text = page.view();
    return std::fwrite(text.data(), 1, text.length(), out) == text.length() &&
           std::fflush(out) == 0;
}

}  // namespace

bool printPage(std::FILE* out, std::string_view document,
               std::initializer_list<std::string_view> sheets) {
    try {
        return tryToPrint(out, document, sheets);
    } catch (std::bad_alloc const&) {
        return false;
    }
}

}  // namespace CLI::XML
