#include "xml/layout/InlineBox.h"

#include "xml/layout/inlineFlow.h"

namespace CLI::XML {

void InlineBox::layout(Dimensions const&) { layoutInline(*this); }

}  // namespace CLI::XML
