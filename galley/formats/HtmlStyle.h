#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>

#include "base/String.h"
#include "galley/galley.h"
#include "web/flow/Look.h"

namespace galley {

/// The classes of a page, and their rules. Whatever page it is, the same class has the same rules.
class HtmlStyle {
public:
    explicit HtmlStyle(Theme colours) : theme(colours) {}

    /// The class of the element that holds the page; the other rules apply inside of it alone.
    std::string_view pageClass() const;
    /// The class of text that looks so: the parameters of the sequence that makes it so, as in
    /// "g1-31". Empty for text without attributes and colours.
    std::string use(web::Look const& look);
    /// The class of a box that is so many cells wide.
    std::string useWidth(std::size_t cells);

    /// Appends the rules for all that was used.
    void appendRules(String& css, bool isDocument) const;

private:
    /// By attributes, text colour and background.
    struct Order {
        bool operator()(web::Look const& left, web::Look const& right) const;
    };

    /// Appends the rules that differ between themes.
    void appendColours(String& css, Theme shown, bool withShapes) const;
    bool isAnythingLinked = false;

    Theme const theme;
    std::set<web::Look, Order> looks;
    std::set<std::size_t> widths;
};

}  // namespace galley
