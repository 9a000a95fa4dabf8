#include "xml/dom/replaceEntities.h"

#include "xml/parser/references.h"

namespace CLI::XML {

namespace {

constexpr EntityReplacement s_textEntities[] = {
    {"nbsp", " "}, {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {nullptr, nullptr},
};

}  // namespace

String replaceEntities(String const& text) { return decodeReferences(text, s_textEntities); }

}  // namespace CLI::XML
