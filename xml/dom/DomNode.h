#pragma once

#include <cstdint>

#include "../../base/RefCounted.h"
#include "../../base/String.h"
#include "../../base/export.h"

namespace CLI::XML {

/// A node of the document tree. A node has no link to its parent; the tree is navigated
/// downwards only.
class GALLEY_EXPORT DomNode : public ZR::RefCounted {
public:
    /// Which of the two derived classes a node is of.
    enum Kind : std::int32_t { Text, Element };

    /// How a node takes part in layout.
    enum Display : std::int32_t { Block, Inline, Table, TableRow, TableCell, None };

    Kind kind;        ///< Never changes.
    Display display;  ///< Inline for every text.

    /// What names the node in messages and dumps: an element's name, or a text in single quotes.
    virtual String toString() const = 0;
    /// The subtree as text, one line a node: this one behind `indent` spaces, each level of the
    /// tree two deeper. Throws std::bad_alloc where it would be 2 GiB or more.
    virtual String dump(unsigned indent) const = 0;

protected:
    /// A node without a lock.
    DomNode(Kind nodeKind, Display nodeDisplay)
        : ZR::RefCounted(nullptr), kind(nodeKind), display(nodeDisplay) {}
};

}  // namespace CLI::XML
