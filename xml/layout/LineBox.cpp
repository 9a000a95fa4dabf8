#include "xml/layout/LineBox.h"

#include "xml/layout/inlineFlow.h"

namespace CLI::XML {

void LineBox::layout(Dimensions const&) { layoutLine(*this); }

}  // namespace CLI::XML
