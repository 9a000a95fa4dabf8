#include <algorithm>
#include <cctype>
#include <map>
#include <utility>

#include "galley/check/SheetReader.h"
#include "galley/check/declarations.h"
#include "galley/check/find.h"
#include "galley/check/wording.h"
#include "web/suggest.h"
#include "xml/dom/vocabulary.h"

namespace galley {

namespace {

using CLI::XML::VocabularyEntry;

class SheetCheck {
public:
    explicit SheetCheck(std::string_view css) : reader(css) {}

    Findings run() {
        for (;;) {
            switch (reader.next()) {
                case SheetReader::Event::Selector:
                    checkSelector();
                    break;
                case SheetReader::Event::Declaration:
                    addDeclaration();
                    break;
                case SheetReader::Event::EndOfRule:
                    checkDeclarations();
                    checkFormerRule();
                    break;
                case SheetReader::Event::Error:
                    checkDeclarations();
                    findings.push_back(reader.error());
                    break;
                case SheetReader::Event::EndOfSheet:
                    sort(findings);
                    return std::move(findings);
            }
        }
    }

private:
    void checkSelector() {
        std::string_view const name = reader.selector;
        if (hasFormFeed(name) || CLI::XML::findInVocabulary(name) != nullptr) return;
        auto const isOfName = [](unsigned char c) { return std::isalnum(c) != 0; };
        bool const isName = std::all_of(name.begin(), name.end(), isOfName);
        std::string_view const suggestion =
            web::suggest(name, CLI::XML::s_vocabulary, &VocabularyEntry::tag);
        warn(findings, reader.positionOf(name),
             "no element is named " + quoted(name) +
                 didYouMean(suggestion, isName ? "" : "; a selector is one name"));
    }

    void addDeclaration() {
        if (hasFormFeed(reader.property) || hasFormFeed(reader.value)) return;
        declarations.push_back({reader.property, reader.value, reader.positionOf(reader.property),
                                reader.positionOf(reader.value)});
    }

    void checkDeclarations() {
        checkRule(declarations, findings);
        declarations.clear();
    }

    /// A rule has ended: of several for the same element the last one counts, alone.
    void checkFormerRule() {
        if (CLI::XML::findInVocabulary(reader.selector) == nullptr) return;
        std::size_t const position = reader.positionOf(reader.selector);
        auto const [rule, isFirst] = lastRules.try_emplace(reader.selector, position);
        if (isFirst) return;
        warn(findings, rule->second,
             "a later rule for " + quoted(reader.selector) + " replaces this one, all of it");
        rule->second = position;
    }

    /// Warns about a form feed in a token, which is then not what it looks like.
    bool hasFormFeed(std::string_view token) {
        std::size_t const index = token.find('\f');
        if (index == std::string_view::npos) return false;
        warn(findings, reader.positionOf(token) + index,
             "a form feed is no white space in a sheet, but a part of " + quoted(token));
        return true;
    }

    SheetReader reader;
    /// Of the rule that is being read.
    std::vector<Declaration> declarations;
    /// Where the last rule for each element begins.
    std::map<std::string_view, std::size_t> lastRules;
    Findings findings;
};

}  // namespace

Findings findInSheet(std::string_view css) { return SheetCheck(css).run(); }

}  // namespace galley
