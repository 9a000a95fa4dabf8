#include "xml/parser/references.h"

namespace CLI::XML {

namespace {

char const* replacementOf(String const& name, EntityReplacement const* table) {
    for (; table->name != nullptr; ++table) {
        if (name == table->name) return table->text;
    }
    return "";
}

}  // namespace

String decodeReferences(String const& text, EntityReplacement const* table) {
    int ampersand = text.indexOf('&');
    int semicolon = ampersand < 0 ? -1 : text.indexOf(';', ampersand);
    if (semicolon < 0) return text;

    String result;
    result.reserve(text.length());
    int copied = 0;
    while (semicolon >= 0) {
        result.concat(text.c_str() + copied, ampersand - copied);
        result += replacementOf(text.substring(ampersand + 1, semicolon), table);
        copied = semicolon + 1;
        ampersand = text.indexOf('&', copied);
        semicolon = ampersand < 0 ? -1 : text.indexOf(';', ampersand);
    }
    return result.concat(text.c_str() + copied, text.length() - copied);
}

}  // namespace CLI::XML
