#pragma once

#include <array>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "web/Element.h"
#include "web/Problem.h"
#include "web/Style.h"
#include "web/css/AttributeReader.h"
#include "web/css/RuleIndex.h"

namespace galley::web {

/// Computes the styles of one document's elements.
///
/// Elements share a style if nothing can tell them apart: neither their names and attributes nor
/// those of the elements around them, nor rules that ask for their places among siblings. So an
/// element's style says for its children which rules match them, but for such rules.
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

    /// Whether there are so many styles that `letGo` frees some.
    bool isFull() const { return styles.size() >= s_many; }
    /// Once it is full, frees all but those in use, so that a document without an end
    /// takes bounded memory. In use are those of the open elements, and of what is not yet written.
    void letGo(std::span<Style const* const> inUse);

    /// Styles that it owns.
    std::size_t size() const { return styles.size(); }

private:
    /// Values of attributes that are remembered, and styles that are kept without being in use:
    /// half a kilobyte each.
    static constexpr std::size_t s_many = 4096;

    using DeclarationList = std::vector<Declarations const*>;

    /// Elements that only their places among siblings tell apart.
    struct Family {
        RuleIndex::Rules matching;
        /// Rules that match some of them.
        RuleIndex::Rules placed;
        /// Without such rules, the style of all.
        Style const* style = nullptr;
        /// With such rules, by what is declared.
        std::map<DeclarationList, Style const*> styles;
    };

    void forgetFamilies();
    Family& familyOf(Element const& element, Style const& parent);
    Style const* placedStyle(Element const& element, Style const& parent, Family& family);
    /// What is declared for an element by rules and by its attributes, in ascending order of
    /// precedence. Sorts the rules.
    DeclarationList collect(RuleIndex::Rules& matching) const;
    Style const* addStyle(Style const& parent, DeclarationList const& declared);

    RuleIndex rules;
    AttributeReader attributes;
    /// Of the outermost element's parent, so to say.
    Style initial;
    std::vector<std::unique_ptr<Style const>> styles;
    /// By all that tells elements apart, as bytes: addresses of the parent's style and of what the
    /// attributes declare, and names.
    std::unordered_map<std::string, Family> families;
    /// That of elements without attributes whose parent has that style: most are such.
    struct BareFamily {
        Family* family = nullptr;
        Style const* parent = nullptr;
        std::string name;
    };
    /// The last ones, by the last letters of names.
    std::array<BareFamily, 32> bareFamilies;

    /// Of the element at hand.
    AttributeReader::Found ofAttributes;
    std::string key;
};

}  // namespace galley::web
