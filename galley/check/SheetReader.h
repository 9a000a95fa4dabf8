#pragma once

#include "galley/check/Finding.h"
#include "xml/parser/scan.h"

namespace galley {

/// Reads a sheet as the library does, and goes on behind its errors. Tokens are parts of the
/// source.
class SheetReader {
public:
    enum class Event {
        /// A rule begins: `selector` is set.
        Selector,
        /// `property` and `value` are set.
        Declaration,
        EndOfRule,
        /// Something else is expected; the rule that is open, if one is, ends without its end.
        Error,
        EndOfSheet,
    };

    /// The source must outlive the reader.
    explicit SheetReader(std::string_view sheet) : source(sheet) { skipWhitespace(); }

    Event next();

    std::string_view selector;
    std::string_view property;
    std::string_view value;

    /// After `Event::Error`.
    Finding error() const;
    /// Of a token in the source.
    std::size_t positionOf(std::string_view token) const {
        return static_cast<std::size_t>(token.data() - source.data());
    }

private:
    Event readSelector();
    Event readDeclaration();
    /// A token and the white space behind it; false where there is none, but `what` expected.
    bool readToken(std::string_view& token, CLI::XML::ByteSet const& stopSet, char const* what);
    bool consume(char c, char const* what);
    void skipWhitespace();
    Event fail();

    std::string_view source;
    std::size_t position = 0;
    char const* expected = "";
    bool isInRule = false;
    bool hasFailed = false;
};

}  // namespace galley
