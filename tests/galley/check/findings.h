#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "galley/check/find.h"
#include "tests/support/sources.h"

namespace galley {

inline bool isError(Finding const& finding) { return finding.kind == Finding::Kind::Error; }

inline std::size_t lineOf(std::string_view source, std::size_t position) {
    auto const before = source.substr(0, position);
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

/// "LINE:COLUMN", from 1.
inline std::string place(std::string_view source, std::size_t position) {
    std::size_t const feed = source.substr(0, position).rfind('\n');
    std::size_t const start = feed == std::string_view::npos ? 0 : feed + 1;
    return std::to_string(lineOf(source, position)) + ":" + std::to_string(position - start + 1);
}

/// Whether the library means `error` by its message.
inline bool isSaidOf(Finding const& error, std::string_view message, std::string_view source) {
    std::string const numbered =
        std::to_string(lineOf(source, error.position)) + ": " + error.message;
    return message == error.message || message == numbered || message == "Line " + numbered;
}

/// What holds for the findings about any source.
inline void checkInvariants(Source const& source, Findings const& findings) {
    std::size_t last = 0;
    for (Finding const& finding : findings) {
        EXPECT_GE(finding.position, last) << finding.message;
        EXPECT_LE(finding.position, source.text.length()) << finding.message;
        EXPECT_EQ(finding.unclosed.has_value(), finding.message.starts_with("End tag </") ||
                                                    finding.message.starts_with("Missing end tag"))
            << finding.message;
        bool const isOneLine = std::none_of(finding.message.begin(), finding.message.end(),
                                            [](unsigned char c) { return c == '\n' || c == '\0'; });
        EXPECT_TRUE(isOneLine && !finding.message.empty()) << finding.message;
        last = finding.position;
    }

    // The library says first that a document is no tree of elements, then that a page is none.
    auto const isFirst = [](Finding const& finding) {
        return isError(finding) && !finding.message.starts_with("Cannot layout");
    };
    auto first = std::find_if(findings.begin(), findings.end(), isFirst);
    if (first == findings.end()) first = std::find_if(findings.begin(), findings.end(), isError);
    std::string const message = source.message();
    if (message.empty() || message.starts_with("Page too large")) {
        EXPECT_TRUE(first == findings.end()) << first->message;
    } else {
        ASSERT_TRUE(first != findings.end()) << message;
        EXPECT_TRUE(isSaidOf(*first, message, source.text)) << message << "\n" << first->message;
    }
}

/// The findings about a source, one a line: "LINE:COLUMN warning: MESSAGE".
inline std::string report(Source const& source, CLI::XML::StyleList const& rules = {}) {
    Findings const findings =
        source.isSheet ? findInSheet(source.text) : findInDocument(source.text, rules);
    checkInvariants(source, findings);
    std::string text;
    for (Finding const& finding : findings) {
        text += place(source.text, finding.position) +
                (isError(finding) ? " error: " : " warning: ") + finding.message;
        if (auto const& unclosed = finding.unclosed) {
            text += ", <" + std::string(unclosed->name) + "> at " +
                    place(source.text, unclosed->position);
        }
        text += '\n';
    }
    return text;
}

}  // namespace galley
