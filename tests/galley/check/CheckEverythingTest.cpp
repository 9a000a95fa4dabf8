// What holds for the findings about any source at all.

#include "tests/galley/check/findings.h"
#include "tests/support/smallStack.h"
#include "tests/support/text.h"

namespace galley {
namespace {

Findings check(Source const& source) {
    Findings findings = source.isSheet ? findInSheet(source.text) : findInDocument(source.text);
    checkInvariants(source, findings);
    return findings;
}

/// Behind an error the rest of a sheet is read as a sheet of its own.
void checkRest(Source const& source, Findings const& findings) {
    std::size_t start = 0;
    for (Finding const& finding : findings) {
        if (!isError(finding)) continue;
        Finding ofRest = finding;
        ofRest.position -= start;
        std::string const rest = source.text.substr(start);
        EXPECT_TRUE(isSaidOf(ofRest, sheetMessage(rest), rest)) << rest;
        start = std::min(source.text.find('}', finding.position), source.text.length() - 1) + 1;
    }
    EXPECT_EQ(sheetMessage(source.text.substr(start)), "");
}

TEST(CheckEverything, FindsNothingInTheExamples) {
    for (Source const& source : exampleSources()) EXPECT_EQ(report(source), "") << source.text;
}

TEST(CheckEverything, AgreesWithTheLibraryOnMutants) {
    std::mt19937 random(1);
    int errors = 0;
    int warnings = 0;
    for (Source const& example : exampleSources()) {
        for (int i = 0; i < 300; ++i) {
            Source const source = mutant(mutant(example, random), random);
            Findings const findings = check(source);
            if (source.isSheet) checkRest(source, findings);
            auto const count = std::count_if(findings.begin(), findings.end(), isError);
            errors += static_cast<int>(count);
            warnings += static_cast<int>(findings.size()) - static_cast<int>(count);
            if (testing::Test::HasFailure()) FAIL() << source.text;
        }
    }
    EXPECT_GT(errors, 1000);
    EXPECT_GT(warnings, 300);
}

TEST(CheckEverything, AgreesWithTheLibraryOnAnything) {
    constexpr std::string_view s_more[] = {"<p>",
                                           "<b>",
                                           "</b>",
                                           "<i ",
                                           "color=\"red\"",
                                           "display=\"",
                                           "none",
                                           "p{",
                                           "color:red;",
                                           "&",
                                           "&lt;",
                                           "&x;",
                                           "a",
                                           "b ",
                                           "\f",
                                           std::string_view("\0", 1),
                                           "\v",
                                           "<table>",
                                           "</q>"};
    std::mt19937 random(2);
    auto const below = [&random](std::size_t n) { return random() % n; };
    for (int i = 0; i < 30000; ++i) {
        std::string text;
        for (std::size_t n = below(12); n > 0; --n) {
            std::size_t const piece = below(std::size(s_pieces) + std::size(s_more));
            bool const isMore = piece >= std::size(s_pieces);
            text += isMore ? s_more[piece - std::size(s_pieces)] : s_pieces[piece];
        }
        for (bool const isSheet : {false, true}) {
            Source const source{text, isSheet};
            Findings const findings = check(source);
            if (isSheet) checkRest(source, findings);
            if (testing::Test::HasFailure()) FAIL() << shown(asString(text));
        }
    }
}

TEST(CheckEverything, AgreesWithTheLibraryOnWhatIsCutOff) {
    for (Source const& source : exampleSources()) {
        for (std::size_t length = 0; length < source.text.length(); ++length) {
            Findings const findings = check({source.text.substr(0, length), source.isSheet});
            if (testing::Test::HasFailure()) FAIL() << source.text.substr(0, length);
        }
    }
}

TEST(CheckEverything, GoesAsDeepAsADocument) {
    auto const levels = [](char const* tag, unsigned number) {
        return std::string(String::repeat(tag, number).view());
    };
    runOnSmallStack([&] {
        EXPECT_EQ(findInDocument(levels("<b>", 1000000) + levels("</b>", 1000000)).size(), 0U);
        EXPECT_EQ(findInDocument(levels("<p margin=\"1\">", 100000)).size(), 1U);
        EXPECT_EQ(findInDocument(levels("<u>", 100000)).size(), 100001U);
        EXPECT_EQ(findInDocument(levels("<table>", 100000)).size(), 100000U);
    });
}

TEST(CheckEverything, TakesManyOfEverything) {
    auto const many = [](char const* piece) {
        return std::string(String::repeat(piece, 50000).view());
    };
    EXPECT_EQ(findInSheet(many("p{color:red;}")).size(), 49999U);
    EXPECT_EQ(findInSheet("p{" + many("color:red;") + "}").size(), 49999U);
    EXPECT_EQ(findInSheet(many("p")).size(), 1U);
    EXPECT_EQ(findInSheet(many("{}")).size(), 50000U);
    EXPECT_EQ(findInSheet(many("P{")).size(), 2U);
    EXPECT_EQ(findInDocument("<p " + many("a=\"\"") + "/>").size(), 50000U);
    EXPECT_EQ(findInDocument("<p a=\"" + many("&;") + "\"/>").size(), 50001U);
    EXPECT_EQ(findInDocument(many("&")).size(), 0U);
    EXPECT_EQ(findInDocument(many("<b>a</b> ")).size(), 49999U);
    EXPECT_EQ(findInDocument("</p>" + many("<!---->")).size(), 0U);
    EXPECT_EQ(findInDocument("</p>" + many("<!-- ")).size(), 0U);
}

}  // namespace
}  // namespace galley
