#include "web/css/MediaList.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "web/css/DeclarationParser.h"
#include "web/css/keywords.h"
#include "web/css/lengths.h"

namespace galley::web {

namespace {

using Kind = Token::Kind;
using Tokens = std::span<Token const>;

/// Whether a page that is shown now is of the type.
constexpr Keyword<bool> s_types[] = {
    {"all", true},    {"screen", true},   {"print", false},      {"speech", false},
    {"tty", false},   {"tv", false},      {"projection", false}, {"handheld", false},
    {"aural", false}, {"braille", false}, {"embossed", false},
};

constexpr Keyword<Media::Scheme> s_schemes[] = {
    {"dark", Media::Scheme::dark},
    {"light", Media::Scheme::light},
};

double pixelsOf(Media const& media) { return media.width * 8.0; }

bool readPixels(ValueReader& reader, double& value) {
    if (reader.atEnd()) return false;
    std::optional<double> const pixels = toPixels(reader.take(), Axis::across);
    value = pixels.value_or(0);
    return pixels.has_value();
}

bool readScheme(ValueReader& reader, double& value) {
    auto scheme = Media::Scheme::none;
    if (!readKeyword<s_schemes>(reader, scheme)) return false;
    value = static_cast<double>(scheme);
    return true;
}

struct Feature {
    std::string_view name;
    bool (*read)(ValueReader& reader, double& value);
    /// Null where there has to be a value.
    bool (*matchesAny)(Media const& media, double);
    bool (*matches)(Media const& media, double value);
};

constexpr Feature s_features[] = {
    {"width", readPixels, [](Media const& media, double) { return media.width > 0; },
     [](Media const& media, double value) { return pixelsOf(media) == value; }},
    {"min-width", readPixels, nullptr,
     [](Media const& media, double value) { return pixelsOf(media) >= value; }},
    {"max-width", readPixels, nullptr,
     [](Media const& media, double value) { return pixelsOf(media) <= value; }},
    {"color", nullptr, [](Media const& media, double) { return media.hasColour; }, nullptr},
    {"prefers-color-scheme", readScheme,
     [](Media const& media, double) { return media.scheme != Media::Scheme::none; },
     [](Media const& media, double value) { return static_cast<double>(media.scheme) == value; }},
};

/// Reads a feature from behind its opening parenthesis through the closing one.
bool readFeature(ValueReader& reader, MediaQuery& query) {
    if (!reader.isNext(Kind::identifier)) return false;
    Feature const* const feature = findWord(s_features, reader.take().text);
    if (feature == nullptr) return false;
    auto matches = feature->matchesAny;
    double value = 0;
    if (reader.take(Kind::colon)) {
        if (feature->read == nullptr || !feature->read(reader, value)) return false;
        matches = feature->matches;
    }
    if (matches == nullptr || (!reader.atEnd() && !reader.take(Kind::closeParenthesis))) {
        return false;
    }
    query.features.push_back({matches, value});
    return true;
}

/// Words that are no types.
constexpr Keyword<bool> s_reserved[] = {{"not", true}, {"only", true}, {"and", true}, {"or", true}};

enum class Outcome {
    known,
    /// A query for a type that nothing is of.
    unknown,
    wrong,
};

/// Reads a type, which must be there.
Outcome readType(ValueReader& reader, MediaQuery& query) {
    if (readKeyword<s_types>(reader, query.isForType)) return Outcome::known;
    query.isForType = false;
    return findWord(s_reserved, reader.take().text) != nullptr ? Outcome::wrong : Outcome::unknown;
}

Outcome readQuery(ValueReader reader, MediaQuery& query) {
    auto outcome = Outcome::known;
    query.isNegated = reader.takeWord("not");
    bool const needsType = !query.isNegated && reader.takeWord("only");
    if (reader.isNext(Kind::identifier)) {
        outcome = readType(reader, query);
        if (reader.atEnd()) return outcome;
        if (!reader.takeWord("and")) return Outcome::wrong;
    } else if (needsType) {
        return Outcome::wrong;
    }
    do {
        if (!reader.take(Kind::openParenthesis) || !readFeature(reader, query)) {
            return Outcome::wrong;
        }
    } while (reader.takeWord("and"));
    return reader.atEnd() ? outcome : Outcome::wrong;
}

}  // namespace

bool MediaQuery::matches(Media const& media) const {
    bool const holds = isForType && std::all_of(features.begin(), features.end(),
                                                [&media](MediaFeature const& feature) {
                                                    return feature.matches(media, feature.value);
                                                });
    return holds != isNegated;
}

MediaList MediaList::parse(Tokens tokens, std::vector<Problem>& problems) {
    MediaList list;
    tokens = trimmed(tokens);
    while (!tokens.empty()) {
        std::size_t const length = lengthBefore(tokens, Kind::comma);
        Tokens const part = trimmed(tokens.first(length));
        MediaQuery query;
        Outcome const outcome = readQuery(ValueReader(part, "@media", problems), query);
        if (outcome != Outcome::known) {
            std::size_t const offset = (part.empty() ? tokens : part).front().offset;
            warn(problems, offset, "unknown media query " + quoted(excerpt(part)));
        }
        if (outcome == Outcome::wrong) query = {false, false, {}};
        list.queries.push_back(std::move(query));
        tokens = tokens.subspan(std::min(length + 1, tokens.size()));
    }
    return list;
}

bool MediaList::matches(Media const& media) const {
    return queries.empty() ||
           std::any_of(queries.begin(), queries.end(),
                       [&media](MediaQuery const& query) { return query.matches(media); });
}

}  // namespace galley::web
