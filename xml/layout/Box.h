#pragma once

#include "../../base/RefCounted.h"
#include "../../base/String.h"
#include "../../base/XCode.h"
#include "../../base/ZRLWPtr.h"
#include "../../base/ZRVector.h"
#include "../../base/export.h"
#include "../dom/nodes.h"
#include "../render/Canvas.h"
#include "Dimensions.h"

namespace CLI::XML {

/// A box of the layout tree. Every displayed node of the document has one, or one a line where
/// line breaking has split it; a line box has no node. A box owns one reference to each child and
/// points to its node, which must outlive it, without owning it.
///
/// The virtual operations stand in the order in which they are run: style, build, lay out, break,
/// paint, show. None of them recurses over the depth of the tree; only the operations of a class of
/// the caller's own are called as any virtual operation is.
class GALLEY_EXPORT Box : public ZR::RefCounted {
public:
    /// The class of the library that a box is of, or derives from.
    enum Type : std::uint8_t { Block, Line, Inline, Table, Row, Cell };

    // What is small comes first, behind the reference count: a box is two cache lines large.
    Type type;  ///< Never changes.
    /// Known from the last layout: another one with the same `containing` would change nothing.
    /// Only read by a layout of the same operation, since the tree may change between operations.
    bool isSettled = false;
    /// Known from the last layout: an edge of a box below this one takes something off the width,
    /// so that less content need not be less wide.
    bool mayShrink = false;
    /// The node that the box renders; null for a line box only.
    DomNode* node;
    /// Padding, border and margin are set from birth and never change; layout sets the content
    /// rectangle.
    Dimensions dimensions;
    /// In document order.
    ZRVector<ZRLWPtr<Box>> children;
    /// Of a block: the width that the last layout offered it, in columns.
    std::int32_t offeredWidth = 0;

    /// A box without children, with the edges that the style of `rendered` gives it; the node is
    /// null for a line box only.
    Box(DomNode* rendered, Type boxType);
    /// A box for the same node, with the same edges; geometry and children are not copied.
    Box(Box const& other);
    Box& operator=(Box const&) = delete;
    ~Box() override;

    /// As `getStyle2`, a text that is found converted with `String::toInteger`.
    virtual int getStyleInt2(String const& property, String const& fallbackProperty,
                             int defaultValue) const;
    /// A new box of the same class, made by its copy constructor: what continues this box on the
    /// next line.
    virtual ZRLWPtr<Box> clone() = 0;
    /// Builds the subtree below this box, depth first, from the children of `node`. Fails with
    /// "Cannot layout '%s' within '%s'" on a child that this box cannot hold; what was made until
    /// then stays. A box without a node fails without a message.
    virtual XCode createChildren() = 0;
    /// The box that is to receive the next inline child of this box.
    virtual ZRLWPtr<Box> getOrCreateLineBox() = 0;
    /// Sets the size of this box and lays out its subtree. The parent has set the position;
    /// `containing` is the parent's geometry as it stands at that moment.
    virtual void layout(Dimensions const& containing) = 0;
    /// Moves what does not fit into `width` columns into a new box of the same kind and returns
    /// it; null where everything fits or nothing can be moved.
    virtual ZRLWPtr<Box> split(int width);
    /// Paints the box and its subtree onto a canvas whose origin is that of the parent's content
    /// box, with the attributes that the parent hands down.
    virtual void drawTo(Canvas& canvas, Canvas::Attributes const& attributes);
    /// Fills the border box where there is a background colour, which then stays in `attributes`.
    virtual void drawBackgroundTo(Canvas& canvas, Canvas::Attributes& attributes);
    /// Draws the sides that have a border width, in the order left, right, top, bottom, corners.
    virtual void drawBorderTo(Canvas& canvas, Canvas::Attributes attributes);
    /// Applies colour and font style for the content.
    virtual void applyContentAttributes(Canvas::Attributes& attributes);
    /// The subtree as text, one line a box: this one behind `indent` spaces, each level of the
    /// tree two deeper. Throws std::bad_alloc where it would be 2 GiB or more.
    virtual String dump(unsigned indent) const;

    /// The value of a style property of the box's own element, or `defaultValue`.
    String getStyle(String const& property, String const& defaultValue) const;
    /// The value of `property`, else that of `fallbackProperty`, else `defaultValue`.
    String getStyle2(String const& property, String const& fallbackProperty,
                     String const& defaultValue) const;
    /// Reads padding, border and margin from the style.
    void initEdges();
};

}  // namespace CLI::XML
