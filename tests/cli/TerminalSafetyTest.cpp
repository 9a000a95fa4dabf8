// No document drives the terminal that the tool prints to.

#include <cstdio>
#include <string>

#include "tests/support/tool.h"

namespace {

using TerminalSafety = CoreTool;

/// Clear the screen, set the title, write the clipboard, ring, go back, in 7 and in 8 bits.
constexpr char const* s_attacks[] = {
    "\x1b[2J",
    "\x1b]0;title\x07",
    "\x1b]52;c;aGk=\x07",
    "\x07",
    "\x08",
    "\x7f",
    "\x9b"
    "2J",
    "\xc2\x9b"
    "2J",
    "\x9d"
    "0;t\x9c",
    "\xe0\x9b"
    "2J",
    "\xc1\x9b"
    "2J",
    "\xed\xa0\x9b",
    "\xf4\x90\x9b\x9b",
    "\xf5\x80\x9b",
    "\xc3"
    "\x1b[1m"
    "\x9b",
};

/// Replaces the library's own sequences, which only choose colours and text attributes.
std::string withoutOwnSequences(std::string text) {
    for (std::size_t start = 0; (start = text.find("\x1b[", start)) != std::string::npos;) {
        std::size_t const end = text.find_first_not_of("0123456789", start + 2);
        if (end == std::string::npos || text[end] != 'm') return text;
        text.replace(start, end + 1 - start, "|");
    }
    return text;
}

/// Whether any byte is a control character to a terminal, of one byte or of two.
bool drivesATerminal(std::string const& printed) {
    std::string const text = withoutOwnSequences(printed);
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto const byte = static_cast<unsigned char>(text[i]);
        auto const before = static_cast<unsigned char>(i > 0 ? text[i - 1] : '\0');
        if (byte < 0x09 || (byte > 0x0D && byte < 0x20) || byte == 0x7F) return true;
        // No character of three bytes or more is in these tests.
        bool const isContinued = before >= 0xC3 && before <= 0xDF;
        if (byte >= 0x80 && byte <= 0x9F && !isContinued) return true;
    }
    return false;
}

TEST_F(TerminalSafety, HoldsForWhateverADocumentSays) {
    for (std::string const attack : s_attacks) {
        std::string repeated;
        for (int i = 0; i < 40; ++i) repeated += attack;
        std::string const documents[] = {
            "<p>a" + attack + "b</p>",
            "<p><![CDATA[" + attack + "]]></p>",
            "<b color=\"red\">" + attack + "</b>",
            "<p border-width=\"1\" border-style=\"" + attack + "\" border-corner-style=\"" +
                attack + "\">a</p>",
            "<p margin-left=\"-1\">" + attack + attack + "</p>",
            "<" + attack + "/>",
            "<p></" + attack + ">",
            "<table><p " + attack + "=\"" + attack + "\"/></table>",
            "<table>" + attack + "</table>",
            attack + "<q/>" + std::string(99, 'a') + attack,
            "<p>" + attack + "</b>",
            "<p>" + attack,
            repeated + "< " + repeated,
        };
        for (std::string const& document : documents) {
            Outcome const outcome = run("--color always --width 5", document);
            EXPECT_FALSE(drivesATerminal(outcome.out)) << testing::PrintToString(document);
            EXPECT_FALSE(drivesATerminal(outcome.err)) << testing::PrintToString(document);
            EXPECT_EQ(outcome.err.find('\x1b'), std::string::npos);
        }
        Outcome const trees = run("--dump dom", documents[0]);
        EXPECT_FALSE(drivesATerminal(trees.out)) << testing::PrintToString(attack);
        write("sheet.css", "p { border-width: 1; border-style: " + attack + "; }");
        Outcome const styled = run("--color always --css sheet.css", "<p>a</p>");
        EXPECT_FALSE(drivesATerminal(styled.out + styled.err)) << testing::PrintToString(attack);
        write("sheet.css", "p { " + attack + " }");
        EXPECT_FALSE(drivesATerminal(run("--css sheet.css", "<p/>").err));
        write("sheet.css", repeated + "{" + repeated + "}");
        Outcome const refused = run("--css sheet.css", "<p/>");
        EXPECT_EQ(refused.status, 1);
        EXPECT_FALSE(drivesATerminal(refused.err)) << testing::PrintToString(attack);
    }
}

TEST_F(TerminalSafety, HoldsForNamesOfFiles) {
    std::string const name = "\x1b]0;t\x07\x9b.xml";
    write(name.c_str(), "<q/>");
    std::string const quoted = "'" + name + "'";
    for (std::string const& arguments :
         {quoted, "--css " + quoted, "--output " + quoted + " " + quoted,
          "--output-dir o " + quoted + " ./" + quoted}) {
        Outcome const outcome = run(arguments, "<p/>");
        EXPECT_NE(outcome.err.find("<U+001B>]0;t<U+0007>?."), std::string::npos) << outcome.err;
        EXPECT_FALSE(drivesATerminal(outcome.err)) << arguments;
    }
}

/// A source that is shown from right to left would be shown as what it is not.
TEST_F(TerminalSafety, HoldsForTheDirectionOfWhatIsShownOfASource) {
    for (std::string const mark : {"\u202A", "\u202B", "\u202C", "\u202D", "\u202E", "\u2066",
                                   "\u2067", "\u2068", "\u2069", "\u200E", "\u200F", "\u061C"}) {
        std::string const document = "<p " + mark + "='" + mark + "' class='" + mark + "'>" + mark +
                                     "&" + mark + ";<" + mark + "/>";
        write("sheet.css", "." + mark + ":" + mark + "{" + mark + ": " + mark + "; color: " + mark +
                               "}\n@media " + mark + "{}\np{list-style-type:'" + mark + "'}");
        for (std::string const arguments :
             {"--check --css sheet.css", "--dump tree --css sheet.css",
              "--dialect core --check --css sheet.css"}) {
            for (char const* const end : {"</p>", "</q>"}) {
                Outcome const outcome = Tool::run(arguments, document + end);
                std::string const shown = outcome.out + outcome.err;
                EXPECT_EQ(shown.find(mark), std::string::npos) << arguments << shown;
                EXPECT_NE(shown.find("<U+"), std::string::npos) << arguments << shown;
            }
        }
    }
}

TEST_F(TerminalSafety, KeepsWhatIsNoControl) {
    struct Case {
        std::string given;
        std::string printed;
    };
    std::string const ascii(200, 'a');
    Case const cases[] = {
        {"a\tb\vc\fd\re", "a b c d e\n"},
        {"caf\xc3\xa9 \xe2\x80\x9cq\xe2\x80\x9d \xf0\x9f\x98\x80", ""},
        {"\xc3\x9b \xf4\x8f\xbf\xbf \xee\x80\x80", ""},
        {"\xe9 latin \xa0", ""},
        {"\x1b[1m", "?[1m\n"},
        {"\xc2\x85", "??\n"},
        {"\xe0\x80\x80", "\xe0??\n"},
        {ascii + "\x01" + ascii, ascii + "?" + ascii + "\n"},
        {ascii + "\xc3\xa9", ""},
    };
    for (Case const& c : cases) {
        std::string const expected = c.printed.empty() ? c.given + "\n" : c.printed;
        EXPECT_EQ(run("--width 1000", c.given).out, expected) << testing::PrintToString(c.given);
    }
}

TEST_F(TerminalSafety, HoldsWherePaintingCutsCharactersApart) {
    // The lead byte is clipped, painted over, or cut off by a sequence.
    std::string const clipped = "<p margin-left=\"-1\">\xc3\x9b x</p>";
    EXPECT_EQ(run("", clipped).out, "? x\n");
    EXPECT_EQ(run("--raw", clipped).out, "\x9b x\n");
    std::string const covered = "<p>\xc3\x9bx</p><p padding-top=\"-1\">\xc2</p>";
    EXPECT_EQ(run("--raw", covered).out, "\xc2\x9bx\n");
    EXPECT_EQ(run("", covered).out, "??x\n");
    std::string const parted = "<p>\xc3\x9bx</p><p padding-top=\"-1\" color=\"red\">\xc3</p>";
    EXPECT_EQ(run("--color always", parted).out, "\x1b[0m\x1b[31m\xc3\x1b[0m?x\n");
}

TEST_F(TerminalSafety, IsGivenUpForRawOutputOnly) {
    write("sheet.css", "p { border-left-width: 1; border-left-style: \x1b[7m; }");
    std::string const document = "<p>\x1b[1m\x07</p>";
    EXPECT_NE(run("--raw --color always --css sheet.css", document).out.find("\x1b[1m\x07"),
              std::string::npos);
    for (char const* format : {"ansi", "plain", "html", "svg"}) {
        std::string const raw = format == std::string("ansi") ? "" : " --raw";
        Outcome const outcome = run("--css sheet.css --format " + (format + raw), document);
        EXPECT_EQ(outcome.out.find_first_of("\x1b\x07"), std::string::npos) << format;
    }
}

}  // namespace
