#pragma once

#include "../../base/XCode.h"
#include "../../base/export.h"
#include "../css/StyleNode.h"
#include "../parser/PullParser.h"
#include "nodes.h"

namespace CLI::XML {

/// Reads events into `parent` until the end tag that closes it, which is left unread, or the end
/// of the document, which only a top-level call accepts. A null `parent` first becomes the
/// implicit root element "html". Running text becomes a node a word; white space is what
/// `isspace` says in the current locale. An element takes the last rule of `styles` whose
/// selector is its name.
///
/// The first failure ends the build and names its cause; elements that were open then are not
/// appended.
GALLEY_EXPORT XCode buildDomTree(ZRLWPtr<DomElement>& parent, bool isTopLevel, PullParser& parser,
                                 ZRList<ZRLWPtr<StyleNode>> const& styles);

}  // namespace CLI::XML
