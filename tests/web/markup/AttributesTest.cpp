#include "web/markup/attributes.h"

#include <gtest/gtest.h>

namespace galley::web {
namespace {

TEST(IntegerAttribute, IsReadAsHtmlReadsIt) {
    struct {
        std::string_view value;
        std::optional<int> expected;
        std::string warning;
    } const cases[] = {
        {"1", 1, ""},
        {" \n+5 ", 5, ""},
        {"-3", -3, ""},
        {"007", 7, ""},
        {"12px", 12, "'12px' is read as 12"},
        {"9", 9, ""},
        {"1.9", 1, "'1.9' is read as 1"},
        {"100", 99, "'100' is read as 99"},
        {"99999999999", 99, "'99999999999' is read as 99"},
        {"-4", std::nullopt, "'-4' is less than -3, the least 'value'"},
        {"-99999999999", std::nullopt, "'-99999999999' is less than -3, the least 'value'"},
        {"", std::nullopt, "'' is no value of 'value'"},
        {"x1", std::nullopt, "'x1' is no value of 'value'"},
        {"+-1", std::nullopt, "'+-1' is no value of 'value'"},
        {"- 1", std::nullopt, "'- 1' is no value of 'value'"},
    };
    for (auto const& [value, expected, warning] : cases) {
        Attribute const attributes[] = {{"start", "1", 1, 8}, {"value", value, 20, 27}};
        Element element;
        element.attributes = attributes;
        std::vector<Problem> problems;
        EXPECT_EQ(integerAttribute(element, "value", {-3, 99}, problems), expected) << value;
        std::vector<Problem> expectedProblems;
        if (!warning.empty()) expectedProblems = {{Problem::Kind::warning, 27, warning}};
        EXPECT_EQ(problems, expectedProblems) << value;
    }
    std::vector<Problem> problems;
    EXPECT_EQ(integerAttribute({}, "value", {1, 2}, problems), std::nullopt);
    EXPECT_TRUE(problems.empty());
}

}  // namespace
}  // namespace galley::web
