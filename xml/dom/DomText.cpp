#include "xml/dom/DomText.h"

namespace CLI::XML {

String DomText::toString() const { return String(String::formatted, "'%s'", text.c_str()); }

}  // namespace CLI::XML
