#pragma once

#include <cstdint>
#include <optional>

#include "xml/dom/nodes.h"
#include "xml/render/Canvas.h"

namespace CLI::XML {

/// What the style of a node does to the attributes that are handed down to it.
class Look {
public:
    /// Changes nothing.
    Look() = default;
    /// `node` may be null.
    explicit Look(DomNode const* node);

    bool hasBackground() const { return background.has_value(); }
    /// What a node hands down of the attributes that it is handed.
    Canvas::Attributes handDown(Canvas::Attributes const& attributes) const {
        return ofContent(ofBackground(attributes));
    }
    /// The attributes of the background, from those handed down.
    Canvas::Attributes ofBackground(Canvas::Attributes attributes) const;
    /// Those of the border, and of the content, from those of the background.
    ///@{
    Canvas::Attributes ofBorder(Canvas::Attributes attributes) const;
    Canvas::Attributes ofContent(Canvas::Attributes attributes) const;
    ///@}

private:
    std::optional<std::uint8_t> background;
    std::optional<std::uint8_t> foreground;
    std::optional<std::uint8_t> border;
    std::uint8_t keptFlags = 0xFF;
    std::uint8_t addedFlags = 0;
};

/// The flag that the name of an inline element adds to what is handed down to it; 0 for none.
std::uint8_t flagOfElement(DomNode const* node);

}  // namespace CLI::XML
