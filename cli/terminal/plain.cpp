#include "cli/terminal/plain.h"

#include "cli/terminal/AnsiReader.h"
#include "cli/terminal/append.h"

void CLI::XML::makePlain(String& page) {
    if (page.indexOf('\x1b') < 0) return;
    String plain;
    plain.reserve(page.length());
    AnsiReader reader(page.view());
    for (AnsiReader::Run run; reader.next(run);) {
        append(plain, run.text, run.endsRow ? "\n" : "");
    }
    page = std::move(plain);
}
