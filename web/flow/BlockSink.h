#pragma once

#include <memory>
#include <string>

#include "web/flow/Paragraph.h"
#include "web/flow/PlainText.h"

namespace galley::web {

class Table;

/// The marker of a list item, which stands outside of it, beside its first row.
struct OutsideMarker {
    /// Printed text that takes so many cells; empty for none.
    std::string text;
    int columns = 0;
};

/// Takes what is in a block container, in the order of the document: blocks that open and close,
/// and between them paragraphs and tables. Styles outlive it.
class BlockSink {
public:
    virtual ~BlockSink() = default;

    virtual void open(Style const& block, OutsideMarker const& marker) = 0;
    virtual void close() = 0;
    virtual void add(PlainText const& text) = 0;
    /// Another one that makes lines.
    virtual void add(Paragraph const& paragraph) = 0;
    virtual void add(std::unique_ptr<Table> table) = 0;
};

}  // namespace galley::web
