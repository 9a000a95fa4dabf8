#include "base/XCode.h"

#include <utility>

#include "tests/support/text.h"

namespace {

TEST(XCode, TellsSuccessFromTheGenericFailureInOneWord) {
    EXPECT_EQ(testExpression(true).word, 1U);
    EXPECT_EQ(testExpression(false).word, 0xFFFFFFFFU);
    EXPECT_EQ(testExpression(false).getValue(), 0x7FFFFFFFU);
    EXPECT_TRUE(testExpression("text") && XCode() && !XCode().isErr());
    EXPECT_FALSE(testExpression(static_cast<char*>(nullptr)) || !testExpression(false).isErr());
}

TEST(XCode, CarriesAMessageBesideItsValue) {
    XCode code = testExpression(false);
    EXPECT_EQ(&code.setString("first"), &code);
    XCode const copy = code;
    EXPECT_EQ(outcome(code.setStringF("%s of %d, not %s", "second", 2, code.getString().c_str())),
              "second of 2, not first");
    EXPECT_EQ(outcome(code), "second of 2, not first");
    EXPECT_EQ(outcome(copy), "first");
    EXPECT_TRUE(XCode().setString("a note on success"));
}

TEST(XCode, LeavesPlainSuccessBehindWhenItMoves) {
    XCode source = testExpression(false).setStringF("lost");
    XCode target = std::move(source);
    EXPECT_EQ(source.word, 1U);  // NOLINT(bugprone-use-after-move): what a move leaves behind
    source = testExpression(false).setStringF("former");
    source = std::move(target);
    EXPECT_EQ(outcome(source = *&source), "lost");
    EXPECT_EQ(target.word, 1U);  // NOLINT(bugprone-use-after-move)
}

}  // namespace
