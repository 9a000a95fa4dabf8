#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/web/css/Tree.h"
#include "tests/web/css/describe.h"
#include "web/css/DeclarationParser.h"
#include "web/css/Tokenizer.h"
#include "web/css/computeStyle.h"

namespace galley::web {
namespace {

/// Makes sheets and markups of few names, so that much matches.
class Maker {
public:
    explicit Maker(unsigned seed) : random(seed) {}

    std::string sheet() {
        std::string text;
        for (int i = 0; i < 12; ++i) {
            text += selector();
            if (chance(3)) text += "," + selector();
            text += "{" + declarations() + "}";
            if (chance(8))
                text = "@media(min-width:" + std::to_string(below(160)) + "){" + text + "}";
        }
        return text;
    }

    std::string markup(int depth) {
        std::string const name = one({"p", "b", "ul"});
        std::string text = "<" + name;
        if (chance(2)) text += " class=\"" + one({"a", "b", "a b", " b a"}) + "\"";
        if (chance(5)) text += " id=\"" + one({"i", "j"}) + "\"";
        if (chance(6)) text += " style=\"" + declarations() + "\"";
        if (chance(6)) text += " color=\"" + one({"red", "lime", "rad"}) + "\"";
        text += ">";
        for (unsigned i = depth < 6 ? below(4) : 0; i > 0; --i) text += markup(depth + 1);
        return text + "</" + name + ">";
    }

private:
    unsigned below(unsigned end) { return static_cast<unsigned>(random() % end); }
    bool chance(unsigned of) { return below(of) == 0; }
    std::string one(std::initializer_list<char const*> list) {
        return list.begin()[below(static_cast<unsigned>(list.size()))];
    }

    std::string selector() {
        std::string text = compound();
        while (chance(2)) text += one({" ", ">", " > "}) + compound();
        return text;
    }

    std::string compound() {
        return one({"p", "b", "ul", "*", ".a", ".b", "p.a", "#i", "b#j", "*.a.b", "p:first-child",
                    ":last-child", "b:nth-child(2n)", "p"});
    }

    std::string declarations() {
        std::string text;
        for (unsigned i = below(3); i < 3; ++i) {
            text +=
                one({"color:red", "color:inherit", "margin:1 2", "margin-left:inherit",
                     "margin-left:3", "border:solid", "border-left:inherit", "border-color:blue",
                     "font-weight:lighter", "font-weight:bold", "tab-size:unset", "tab-size:3",
                     "text-decoration:underline", "width:12.5%", "margin:unset"});
            text += one({";", ";", "!important;"});
        }
        return text;
    }

    std::mt19937 random;
};

/// The definition, by trying all ancestors.
bool matchesFrom(std::vector<CompoundSelector> const& compounds, std::size_t i,
                 Element const* element) {
    if (element == nullptr || !compounds[i].matches(*element)) return false;
    if (i + 1 == compounds.size()) return true;
    if (compounds[i].isChild) return matchesFrom(compounds, i + 1, element->parent);
    for (Element const* up = element->parent; up != nullptr; up = up->parent) {
        if (matchesFrom(compounds, i + 1, up)) return true;
    }
    return false;
}

/// A declaration block with all that its precedence depends on, in this order.
struct Applied {
    int layer;
    unsigned specificity;
    std::size_t place;
    Declarations const* declarations;

    bool operator<(Applied const& other) const {
        return std::tie(layer, specificity, place) <
               std::tie(other.layer, other.specificity, other.place);
    }
};

DeclarationBlock declared(std::string_view text) {
    std::vector<Problem> ignored;
    Suggester unused;
    return DeclarationParser(ignored, unused).parse(Tokenizer(text).run());
}

/// Tries all rules of all sheets on an element, sorts them as CSS says and shares nothing.
Style slowStyle(std::vector<Sheet> const& sheets, Media const& media, Element const& element) {
    std::vector<Applied> applied;
    auto const add = [&applied](DeclarationBlock const& block, int normal, int important,
                                unsigned specificity) {
        applied.push_back({normal, specificity, applied.size(), &block.normal});
        applied.push_back({important, specificity, applied.size(), &block.important});
    };
    for (Sheet const& sheet : sheets) {
        bool const isDefault = &sheet == &sheets.front();
        for (Rule const* const rule : sheet.rulesFor(media)) {
            for (Selector const& selector : rule->selectors) {
                if (!matchesFrom(selector.all(), 0, &element)) continue;
                add(rule->block, isDefault ? 0 : 2, isDefault ? 6 : 4, selector.specificity());
            }
        }
    }
    DeclarationBlock const style = declared(valueOf(element, "style"));
    add(style, 3, 5, 0);
    DeclarationBlock const colour = declared("color:" + std::string(valueOf(element, "color")));
    add(colour, 1, 1, 0);
    std::sort(applied.begin(), applied.end());
    std::vector<Declarations const*> list;
    for (Applied const& a : applied) list.push_back(a.declarations);
    return computeStyle(element.parent == nullptr ? Style() : *element.parent->style, list);
}

TEST(RandomCascade, ComputesWhatTheDefinitionSays) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        Maker maker(seed);
        std::string const texts[] = {maker.sheet(), maker.sheet(), maker.sheet()};
        std::vector<Sheet> sheets;
        for (std::string const& text : texts) sheets.push_back(parsed(text));
        Sheet const* const authors[] = {&sheets[1], &sheets[2]};
        std::vector<Problem> problems;
        Media const media;
        Cascade cascade(sheets[0], authors, media, problems);
        std::string const markup = maker.markup(0);
        Tree tree(markup);
        tree.styleWith(cascade);
        for (Element const& element : tree.elements()) {
            ASSERT_EQ(describe(*element.style), describe(slowStyle(sheets, media, element)))
                << seed << markup << texts[0] << texts[1] << texts[2];
        }
    }
}

}  // namespace
}  // namespace galley::web
