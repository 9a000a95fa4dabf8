#include "xml/dom/replaceEntities.h"

#include "xml/dom/textEntities.h"

namespace CLI::XML {

String replaceEntities(String const& text) { return decodeReferences(text, s_textEntities); }

}  // namespace CLI::XML
