#include "web/css/suggestValue.h"

#include <functional>
#include <vector>

#include "web/css/Declarations.h"
#include "web/css/Tokenizer.h"
#include "web/css/colourNames.h"
#include "web/css/valueWords.h"
#include "web/suggest.h"

namespace galley::web {

namespace {

using Words = std::vector<std::string_view>;

template <class... Tables>
Words wordsOf(Tables const&... tables) {
    Words words = {"auto", "initial", "inherit", "unset", "thin", "medium", "thick"};
    auto const add = [&words](auto const& table) {
        for (auto const& row : table) words.push_back(row.name);
    };
    (add(tables), ...);
    return words;
}

/// Of all properties.
Words const& allWords() {
    static Words const s_words =
        wordsOf(s_displays, s_textAligns, s_textTransforms, s_verticalAligns, s_whiteSpaces,
                s_overflowWraps, s_wordBreaks, s_markerPositions, s_captionSides, s_visibilities,
                s_borderCollapses, s_tableLayouts, s_fontStyles, s_markerKinds, s_lineKinds,
                s_fontWeights, s_decorationLines, s_colourNames);
    return s_words;
}

bool isValue(std::string_view word, Property const& property) {
    std::vector<Problem> ignored;
    std::vector<Token> const tokens = Tokenizer(word).run();
    Declarations declarations;
    return declarations.declare(property, ValueReader(tokens, property.name, ignored)) &&
           ignored.empty();
}

}  // namespace

std::string_view suggestValue(Property const& property, std::string_view word) {
    Words candidates;
    for (std::string_view const each : allWords()) {
        if (isWithinEdits(word, each, 2) && isValue(each, property)) candidates.push_back(each);
    }
    return suggest(word, candidates, std::identity());
}

}  // namespace galley::web
