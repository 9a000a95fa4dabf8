#pragma once

#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

#include "web/Element.h"
#include "web/Problem.h"
#include "web/Style.h"
#include "web/css/AttributeReader.h"
#include "web/css/RuleIndex.h"

namespace galley::web {

/// Computes the styles of one document's elements. Elements of the same parents' style that the
/// same declarations apply to share theirs.
class Cascade {
public:
    /// `defaults` is the sheet under all others, `authors` the others in their order. All of these
    /// must outlive the cascade; warnings about attributes are appended to `found`.
    Cascade(Sheet const& defaults, std::span<Sheet const* const> authors, Media const& media,
            std::vector<Problem>& found);

    Cascade(Cascade const&) = delete;
    Cascade& operator=(Cascade const&) = delete;

    /// The style of an element whose parent, if it has one, has its own. Reports what is wrong with
    /// the attributes at each call. The cascade owns the style, as long as it lives or until
    /// `letGo`.
    Style const* styleOf(Element const& element);

    /// Once there are many styles, frees all but those in use, so that a document without an end
    /// takes bounded memory. In use are those of the open elements, and of what is not yet written.
    void letGo(std::span<Style const* const> inUse);

    /// Styles that it owns.
    std::size_t size() const { return styles.size(); }

private:
    /// What a style depends on.
    struct Source {
        Style const* parent;
        std::vector<Declarations const*> declared;

        bool operator==(Source const&) const = default;
    };

    struct SourceHash {
        std::size_t operator()(Source const& source) const;
    };

    /// Sets `source` for an element.
    void collect(Element const& element);

    RuleIndex rules;
    AttributeReader attributes;
    /// Of the outermost element's parent, so to say.
    Style const initial;
    std::vector<std::unique_ptr<Style const>> styles;
    /// Those of `styles` that can be shared. The declarations are the sheets' and the attributes'.
    std::unordered_map<Source, Style const*, SourceHash> shared;

    /// Kept from one element to the next for their buffers.
    Source source;
    std::vector<IndexedRule> matching;
    AttributeReader::Found declared;
};

}  // namespace galley::web
