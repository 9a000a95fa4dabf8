// The pull parser, driven by what it says comes next.

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check.h"
#include "xml/parser/PullParser.h"

namespace CLI::XML {
namespace {

XCode readNext(PullParser& parser, PullParser::TagType next) {
    switch (next) {
        case PullParser::TAG_START:
            return parser.readStartTag();
        case PullParser::TAG_END:
            return parser.readEndTag();
        case PullParser::TAG_CONTENT:
            return parser.readContent();
        case PullParser::TAG_OTHER:
            return parser.skipOtherTag();
        case PullParser::TAG_COMMENT:
            return parser.skipCommentTag();
        default:
            require(false, "the parser says what it can read");
            return {};
    }
}

/// Reads to the end or to the first failure. Returns what was read.
std::string readAll(PullParser& parser) {
    std::string read;
    for (;;) {
        PullParser::TagType const next = parser.getNextTag();
        if (next == PullParser::TAG_END_OF_DOCUMENT) return read;
        int const start = parser.position;
        int const startLine = parser.line;
        bool const isImplied = parser.selfClosing;
        XCode const result = readNext(parser, next);
        require(parser.position >= start && parser.position <= parser.text.length(),
                "the parser moves on within the text");
        std::string_view const passed = parser.text.view().substr(
            static_cast<std::size_t>(start), static_cast<std::size_t>(parser.position - start));
        auto const lineFeeds = std::count(passed.begin(), passed.end(), '\n');
        require(parser.line == startLine + lineFeeds, "the line follows the position");
        if (!result) {
            String const prefix(String::formatted, "%d: ", parser.line);
            require(parser.errorMessage.view().starts_with(prefix.view()),
                    "a failure names the line it is on");
            return read += parser.errorMessage.view();
        }
        require(isImplied ? passed.empty() : !passed.empty(), "what is read is passed by");
        read += std::to_string(next);
        read += parser.name.view();
        if (next == PullParser::TAG_CONTENT) read += parser.content.view();
        for (unsigned i = 0; i < parser.attributes.count; ++i) {
            read += parser.attribute(i).name.view();
            read += parser.attribute(i).value.view();
        }
        require(parser.attribute(parser.attributes.count).name == "",
                "an attribute that is not there is empty");
    }
}

}  // namespace
}  // namespace CLI::XML

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using CLI::XML::PullParser;
    String markup;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are the text
    markup.assign({reinterpret_cast<char const*>(data), size});
    PullParser copying(markup);
    PullParser borrowing = PullParser::withoutCopy(markup);
    CLI::XML::require(CLI::XML::readAll(copying) == CLI::XML::readAll(borrowing),
                      "a parser reads its copy as it reads the caller's text");
    return 0;
}
