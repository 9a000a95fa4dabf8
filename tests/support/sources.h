#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "base/String.h"
#include "xml/xml.h"

inline String asString(std::string_view text) {
    return String(text.data(), 0, static_cast<int>(text.length()));
}

/// The library's message for a document, empty where it renders it.
inline std::string documentMessage(std::string_view document) {
    String page;
    return CLI::XML::xmlToText(page, asString(document), {}, 80).getString().c_str();
}

inline std::string sheetMessage(std::string_view sheet) {
    CLI::XML::StyleList rules;
    return CLI::XML::parseCss(rules, asString(sheet)).getString().c_str();
}

/// A document or a sheet.
struct Source {
    std::string text;
    bool isSheet;

    std::string message() const { return isSheet ? sheetMessage(text) : documentMessage(text); }
};

/// Those of the core in the examples.
inline std::vector<Source> exampleSources() {
    std::vector<Source> sources;
    for (auto const& entry :
         std::filesystem::recursive_directory_iterator(GALLEY_SOURCE_DIR "/examples/core")) {
        bool const isSheet = entry.path().extension() == ".css";
        if (!isSheet && entry.path().extension() != ".xml") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        sources.push_back({{std::istreambuf_iterator<char>(file), {}}, isSheet});
    }
    return sources;
}

/// What faults are made of.
inline constexpr std::string_view s_pieces[] = {
    "<",    ">",    "</",  "/>",   "\"",        "=",   " ",    "\n",  "{",    "}",    ":",  ";",
    "<td>", "</p>", "<q>", "<tr>", "<![CDATA[", "]]>", "<!--", "-->", "\r\n", "\xc3", "\t", "x"};

/// The source with one or two faults, perhaps.
inline Source mutant(Source source, std::mt19937& random) {
    auto const below = [&random](std::size_t n) { return random() % n; };
    for (std::size_t n = 1 + below(2); n > 0; --n) {
        source.text.replace(below(source.text.length()), below(4),
                            s_pieces[below(std::size(s_pieces))]);
    }
    return source;
}
