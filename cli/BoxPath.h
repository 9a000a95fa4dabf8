#pragma once

#include <vector>

#include "base/XCode.h"
#include "xml/layout/Box.h"
#include "xml/parser/PullParser.h"

/// The boxes of the open elements of a document, outermost first. None of them gets children: all
/// that is asked of them is what they can hold. A refusal carries the library's message.
class BoxPath {
public:
    BoxPath();

    /// An element begins whose start tag `parser` has just read, and whose name is known.
    XCode startElement(CLI::XML::PullParser const& parser);
    /// The innermost open element ends.
    void endElement();
    /// Running text with a word in it.
    XCode addText() const;

private:
    std::vector<ZRLWPtr<CLI::XML::Box>> boxes;
    /// Open elements from the outermost one on that is not displayed.
    unsigned hidden = 0;
};
