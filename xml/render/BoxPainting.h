#pragma once

#include <memory>

#include "xml/layout/Box.h"

namespace CLI::XML {

/// The painting of one box from its beginning, when its position and its edges are known, to its
/// end, when its size is known too: in between its children paint onto `canvas()` with
/// `attributes()`.
///
/// That canvas is the box's own, composed over its background and border at the end; or, where a
/// box has neither and the place is free, its parent's with the origin moved, so that nothing is
/// copied. One painting is begun and ended within another.
class BoxPainting {
public:
    /// Whether the box has its size at the beginning, or gets it until the end: then background and
    /// border are painted there, to the same effect.
    enum Stage : std::uint8_t { Complete, Open };

    /// `handedDown` are the attributes from the parent, `ofParent` is the canvas that it gives.
    /// Both outlive the painting, as does the box.
    BoxPainting(Box& painted, Canvas& ofParent, Canvas::Attributes const& handedDown, Stage stage);
    BoxPainting(BoxPainting&& other) noexcept;
    BoxPainting& operator=(BoxPainting&&) = delete;
    ~BoxPainting();

    Box& painted() const { return *box; }
    Canvas& canvas() const { return own != nullptr ? *own : *target; }
    Canvas::Attributes const& attributes() const { return content; }
    /// Whether all paints straight onto the parent's canvas.
    bool paintsDirectly() const { return isDirect; }

    /// Background and border, then the content over both.
    void finish();

private:
    bool hasBorder() const;

    Box* box;
    Canvas* target;
    Canvas::Attributes inherited;
    Canvas::Attributes content;
    bool isBeneathMissing = false;
    bool isDirect = false;
    std::unique_ptr<Canvas> own;
};

}  // namespace CLI::XML
