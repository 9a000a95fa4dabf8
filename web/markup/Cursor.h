#pragma once

#include <cstddef>
#include <string_view>

namespace galley::web {

/// A place in a document, from which it is read on.
class Cursor {
public:
    /// The document must outlive the cursor and what is taken with it.
    explicit Cursor(std::string_view markup) : source(markup) {}

    /// In bytes from the start of the document; never more than there are.
    std::size_t position() const { return at; }
    bool atEnd() const { return at == source.size(); }

    /// The next byte, which must be there.
    char peek() const { return source[at]; }
    /// The byte so many behind the next one, or 0 where there is none.
    char peek(std::size_t ahead) const {
        return source.size() - at > ahead ? source[at + ahead] : '\0';
    }
    /// The text is not empty.
    bool startsWith(std::string_view text) const {
        return at < source.size() && source[at] == text.front() &&
               source.substr(at).starts_with(text);
    }

    std::string_view between(std::size_t start, std::size_t end) const {
        return source.substr(start, end - start);
    }

    /// Steps behind the text if it is next.
    bool take(std::string_view text) {
        if (!startsWith(text)) return false;
        at += text.size();
        return true;
    }
    bool take(char byte) {
        if (at == source.size() || source[at] != byte) return false;
        ++at;
        return true;
    }
    /// Of a document, up to the next tag.
    struct Text {
        std::string_view bytes;
        bool isAscii = true;
        bool hasAmpersand = false;
    };

    /// Takes what is before the next `<`, or all.
    Text takeText();
    /// Takes the bytes before the next one that is `end`, or all.
    std::string_view takeUntil(char end);
    /// Steps behind the next `end`, if there is one.
    bool skipThrough(std::string_view end);
    /// Steps before the next byte that is one of these, if there is one.
    bool skipUntilAnyOf(std::string_view bytes);
    /// Whether there was any.
    bool skipWhitespace();
    /// Takes the name of an element or an attribute; empty where none begins.
    std::string_view takeName();

private:
    bool goTo(std::size_t found);

    std::string_view source;
    std::size_t at = 0;
};

}  // namespace galley::web
