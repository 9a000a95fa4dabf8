#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A document, a sheet and a width in columns, always the same for a seed: all of the language in
/// all of it, in one of several manners by the seed, so that what is rare in one is usual in
/// another.
class RandomDocument {
public:
    std::string markup;
    std::string sheet;
    int width = 0;

    explicit RandomDocument(unsigned seed) : random(seed), manner(s_manners[seed % s_mannerCount]) {
        static constexpr int s_widths[] = {0, 1, 3, 8, 2147483647};
        sheet = rules();
        width = chance(8) ? s_widths[pick(std::size(s_widths))] : static_cast<int>(pick(50));
        markup = content(manner.depth);
        if (manner.faults && chance(2)) spoil();
    }

private:
    struct Manner {
        int depth;
        std::vector<std::string_view> names;
        /// Of an element, one in so many: has edges, is a table; of an edge, is negative.
        ///@{
        unsigned edges;
        unsigned tables;
        unsigned negative;
        ///@}
        unsigned largestEdge;
        /// Also what is no document, or a document that cannot be laid out.
        bool faults;
    };

    static inline Manner const s_manners[] = {
        {6, {"b", "i", "em", "mark", "strong"}, 3, 0, 0, 3, false},
        {5, {"b", "i", "em", "strong", "b", "i", "div", "p"}, 3, 30, 0, 3, false},
        {5, {"div", "p", "h1", "b", "i"}, 2, 8, 0, 3, false},
        {5, {"div", "p", "h2", "b", "mark", "em"}, 2, 8, 3, 4, false},
        {4, {"table", "b", "table", "p"}, 3, 2, 8, 3, false},
        {4, {"div", "p", "b", "table"}, 2, 6, 8, 40, false},
        {4, {"div", "p", "b", "i", "h3", "em"}, 3, 6, 8, 3, true},
    };
    static constexpr unsigned s_mannerCount = 7;

    unsigned pick(std::size_t n) { return static_cast<unsigned>(random() % n); }
    /// One in `n`; never for 0.
    bool chance(unsigned n) { return n > 0 && pick(n) == 0; }
    template <std::size_t n>
    std::string oneOf(char const* const (&texts)[n]) {
        return texts[pick(n)];
    }

    std::string content(int depth) {
        std::string text;
        for (unsigned n = pick(8); n > 0; --n) {
            text += depth > 0 && chance(2) ? element(depth - 1) : word();
        }
        return text;
    }

    /// In an inline element, and in a cell, tables stand in blocks.
    std::string contentOf(bool isElementInline, int depth) {
        bool const former = std::exchange(isInline, isElementInline);
        std::string text = content(depth);
        isInline = former;
        return text;
    }

    std::string word() {
        static constexpr char const* s_ends[] = {
            " ", " ", " ", " ", " ", " ", "", "", "\n", " \t ", "<!-- -->", "&nbsp;x ", "&x; "};
        static constexpr char const* s_rare[] = {"&x;",   "&lt;b&amp;", "<![CDATA[ a<b\t]]>",
                                                 "<?x?>", "&nbsp; ",    "a&b;c d"};
        if (chance(25)) return oneOf(s_rare);
        std::string letters;
        for (unsigned n = 1 + pick(9); n > 0; --n) letters += static_cast<char>('a' + pick(26));
        return letters + oneOf(s_ends);
    }

    std::string element(int depth) {
        std::string const name(manner.names[pick(manner.names.size())]);
        if (name == "table" || chance(manner.tables)) {
            return isInline ? "<div>" + table(depth) + "</div>" : table(depth);
        }
        if (chance(12)) return "<" + name + attributes() + "/>";
        bool const isBlock = name == "div" || name == "p" || name.front() == 'h';
        return "<" + name + attributes() + ">" + contentOf(!isBlock, depth) + "</" + name + ">";
    }

    std::string table(int depth) {
        std::string rows;
        for (unsigned i = pick(4); i > 0; --i) {
            rows += "<tr" + attributes() + ">";
            for (unsigned j = pick(4); j > 0; --j) {
                std::string const name = chance(5) ? "th" : "td";
                rows +=
                    "<" + name + attributes() + ">" + contentOf(true, depth) + "</" + name + ">";
            }
            rows += "</tr>";
        }
        return "<table" + attributes() + ">" + rows + "</table>";
    }

    std::string attributes() {
        std::string text;
        while (chance(manner.edges)) {
            text += ' ' + declaration("=\"") + '"';
        }
        if (chance(manner.faults ? 12 : 150)) {
            static constexpr char const* s_displays[] = {"block",     "inline",     "none",
                                                         "table-row", "table-cell", "table"};
            text += " display=\"" + oneOf(s_displays) + '"';
        }
        return text;
    }

    /// A property and a value, with what stands between them.
    std::string declaration(char const* between) {
        static constexpr char const* s_edges[] = {
            "margin",           "margin-left",        "margin-right",
            "margin-top",       "margin-bottom",      "padding",
            "padding-left",     "padding-right",      "padding-top",
            "padding-bottom",   "border-width",       "border-left-width",
            "border-width",     "border-width",       "border-right-width",
            "border-top-width", "border-bottom-width"};
        static constexpr char const* s_colors[] = {"red", "blue", "mangenta", "no"};
        static constexpr char const* s_fonts[] = {"normal", "bold", "italic", "mark", "no"};
        static constexpr char const* s_styles[] = {"border-style",        "border-left-style",
                                                   "border-right-style",  "border-top-style",
                                                   "border-bottom-style", "border-corner-style"};
        static constexpr char const* s_texts[] = {"-", "|", "#", "ab", "+=+", "x", "longer-text"};
        switch (pick(8)) {
            case 0:
                return (chance(3) ? "border-color" : "color") + (between + oneOf(s_colors));
            case 1:
                return "background-color" + (between + oneOf(s_colors));
            case 2:
                return "font-style" + (between + oneOf(s_fonts));
            case 3:
                return oneOf(s_styles) + between + oneOf(s_texts);
            default:
                return oneOf(s_edges) + between + cells();
        }
    }

    std::string cells() {
        unsigned const size = pick(chance(3) ? manner.largestEdge + 1 : 3);
        return (chance(manner.negative) ? "-" : "") + std::to_string(size);
    }

    std::string rules() {
        static constexpr char const* s_selectors[] = {"p", "b", "i", "td", "tr", "div", "table"};
        std::string text;
        for (unsigned n = chance(2) ? 0 : pick(5); n > 0; --n) {
            text += oneOf(s_selectors) + "{";
            for (unsigned m = pick(3); m > 0; --m) text += declaration(":") + ";";
            text += "}";
        }
        return text;
    }

    void spoil() {
        static constexpr char const* s_pieces[] = {"<",    ">",    "</",       "/>",   "\"",
                                                   "<td>", "</p>", "<q>",      "<tr>", "</b>",
                                                   "<b>",  "<p>",  "<table/>", "x",    "-->"};
        std::string const piece = oneOf(s_pieces);
        markup.insert(pick(markup.length() + 1), piece);
    }

    std::mt19937 random;
    Manner const& manner;
    bool isInline = false;
};
