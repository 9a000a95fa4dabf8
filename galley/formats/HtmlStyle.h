#pragma once

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
    /// The class of a box for a wide character.
    std::string_view useWide();

    /// Appends the rules for all that was used.
    void appendRules(String& css, bool isDocument) const;

private:
    /// By attributes, text colour and background.
    struct Order {
        bool operator()(web::Look const& left, web::Look const& right) const;
    };

    /// Appends the rules of texts: colours, which differ between themes, and all else if asked.
    void appendLooks(String& css, Theme shown, bool withShapes) const;

    Theme const theme;
    std::set<web::Look, Order> looks;
    bool isAnythingLinked = false;
    bool isAnythingWide = false;
};

}  // namespace galley
