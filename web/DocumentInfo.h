#pragma once

#include <string>

namespace galley::web {

/// What a document says about itself, in UTF-8; empty where it says nothing.
struct DocumentInfo {
    /// The text of the `title` in its head, with single spaces.
    std::string title;
    /// A language tag, by `lang` or `xml:lang` of the element `html`.
    std::string language;
};

}  // namespace galley::web
