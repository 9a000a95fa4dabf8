#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "web/Problem.h"
#include "web/Style.h"
#include "web/css/Token.h"

namespace galley::web {

/// What a page is shown on.
struct Media {
    enum class Scheme { none, dark, light };
    /// What a page has of links: that one can follow them, nothing, or numbers and a list.
    enum class Links { followed, ignored, listed };

    /// Of the page, in cells.
    unsigned width = 80;
    bool hasColour = true;
    /// Colours that are preferred, where that is known.
    Scheme scheme = Scheme::none;
    Links links = Links::followed;
    CellRules cells = {};
};

/// One thing that a media query asks.
struct MediaFeature {
    bool (*matches)(Media const& media, double value);
    double value;
};

/// Holds if all of it does.
struct MediaQuery {
    bool isNegated = false;
    /// Whether the type is ours. A query that is wrong is for no type.
    bool isForType = true;
    std::vector<MediaFeature> features;

    bool matches(Media const& media) const;
};

/// The condition of an `@media` rule. It holds if one of its queries does, or if there are none.
class MediaList {
public:
    /// Reads what is before the braces. A query that is wrong holds for nothing, with a warning,
    /// and nothing is of a type that is not known.
    static MediaList parse(std::span<Token const> tokens, std::vector<Problem>& problems);

    bool matches(Media const& media) const;

private:
    std::vector<MediaQuery> queries;
};

}  // namespace galley::web
