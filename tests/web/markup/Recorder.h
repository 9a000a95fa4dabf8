#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "web/markup/readDocument.h"

namespace galley::web {

/// Writes down what it is told: `<NAME ATTRIBUTE="VALUE">`, `[TEXT]`, `</NAME>`, `{SHEET}`. Checks
/// that elements are in each other and stay as they were.
class Recorder final : public DocumentHandler {
public:
    bool wantsPlaces = false;
    std::string events;

    void styleSheet(EmbeddedSheet const& sheet) override {
        events.append("{").append(sheet.media()).append(sheet.text()).append("}");
    }

    bool asksForLastChild() override { return wantsPlaces; }

    void startElement(Element& element) override {
        EXPECT_EQ(element.parent, open.empty() ? nullptr : open.back());
        open.push_back(&element);
        written.push_back(attributesOf(element));
        events.append("<").append(element.name).append(written.back());
        if (wantsPlaces)
            events += " " + std::to_string(element.index) + (element.isLast ? "!" : "");
        events += ">";
    }

    void text(std::string_view decoded) override {
        EXPECT_FALSE(decoded.empty());
        events.append("[").append(decoded).append("]");
    }

    void title(std::string_view decoded) override {
        events.append("title[").append(decoded) += "]";
    }

    void endElement(Element& element) override {
        ASSERT_FALSE(open.empty());
        EXPECT_EQ(&element, open.back());
        EXPECT_EQ(attributesOf(element), written.back());
        events.append("</").append(element.name).append(">");
        open.pop_back();
        written.pop_back();
    }

    std::vector<Element const*> open;

private:
    static std::string attributesOf(Element const& element) {
        std::string text;
        for (Attribute const& attribute : element.attributes) {
            text.append(" ").append(attribute.name).append("=\"");
            text.append(attribute.value).append("\"");
        }
        return text;
    }

    std::vector<std::string> written;
};

/// What is in a document, and "OFFSET error: MESSAGE" or the like, a line for each problem.
struct Reading {
    explicit Reading(std::string_view markup, bool wantsPlaces = false) {
        Recorder recorder;
        recorder.wantsPlaces = wantsPlaces;
        isRead = readDocument(markup, recorder, found);
        EXPECT_TRUE(!isRead || recorder.open.empty());
        events = recorder.events;
        static constexpr char const* s_kinds[] = {" error: ", " warning: ", " note: "};
        for (Problem const& problem : found) {
            problems += std::to_string(problem.offset) + s_kinds[static_cast<int>(problem.kind)] +
                        problem.message + "\n";
        }
    }

    bool isRead;
    std::string events;
    std::vector<Problem> found;
    std::string problems;
};

}  // namespace galley::web
