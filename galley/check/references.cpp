#include "galley/check/references.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <string>
#include <vector>

#include "galley/check/wording.h"
#include "web/suggest.h"
#include "xml/dom/vocabulary.h"
#include "xml/parser/PullParser.h"

namespace galley {

namespace {

using CLI::XML::EntityReplacement;
using Names = std::vector<std::string_view>;

Names namesOf(EntityReplacement const* table) {
    Names names;
    for (; table->name != nullptr; ++table) names.emplace_back(table->name);
    return names;
}

bool looksLikeName(std::string_view text) {
    auto const isOfName = [](unsigned char c) { return c == '#' || std::isalnum(c) != 0; };
    return !text.empty() && std::all_of(text.begin(), text.end(), isOfName);
}

/// What is said about a reference, from "&" to ";", that is not known and disappears.
std::string aboutUnknown(std::string_view reference, Names const& known, std::string const& place) {
    std::string_view const name = reference.substr(1, reference.length() - 2);
    if (!looksLikeName(name)) {
        return quoted(reference) + " disappears; write '&amp;' for an ampersand";
    }
    std::string const complaint = quoted(reference) + " is no reference in " + place;
    std::string_view const suggestion = web::suggest(name, known, std::identity());
    if (suggestion.empty()) return complaint + " and disappears; write the character itself";
    return complaint + didYouMean("&" + std::string(suggestion) + ";", "");
}

void checkReferences(std::string_view text, std::size_t position, Names const& known,
                     char const* place, Findings& findings) {
    for (std::size_t start = text.find('&'); start != std::string_view::npos;) {
        std::size_t const end = text.find(';', start);
        // An ampersand that no semicolon follows stands for itself.
        if (end == std::string_view::npos) return;
        std::string_view const name = text.substr(start + 1, end - start - 1);
        if (std::find(known.begin(), known.end(), name) == known.end()) {
            std::string_view const reference = text.substr(start, end + 1 - start);
            warn(findings, position + start, aboutUnknown(reference, known, place));
        }
        start = text.find('&', end);
    }
}

}  // namespace

void checkReferencesInText(std::string_view word, std::size_t position, Findings& findings) {
    static Names const s_known = namesOf(CLI::XML::s_textEntities);
    checkReferences(word, position, s_known, "text", findings);
}

void checkReferencesInValue(std::string_view value, std::size_t position, Findings& findings) {
    static Names const s_known = namesOf(CLI::XML::PullParser::s_specialReplacement);
    checkReferences(value, position, s_known, "an attribute", findings);
}

}  // namespace galley
