#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "web/markup/TagReader.h"

namespace galley::web {

/// Splits a document into its pieces. Comments, processing instructions and the document type are
/// passed over; whether tags match is not looked at.
class Scanner {
public:
    /// The document must outlive the pieces, the list of problems the scanner.
    Scanner(std::string_view markup, std::vector<Problem>& found);

    Scanner(Scanner const&) = delete;
    Scanner& operator=(Scanner const&) = delete;

    /// Reads the next piece into one that may have been used before. Where the document is at fault
    /// it appends an error, with its place, and returns false; then nothing more can be read.
    bool next(Piece& piece);

    /// Behind what was read last, in bytes from the start of the document.
    std::size_t position() const { return cursor.position(); }

private:
    bool readSection(Piece& piece);
    bool skipDeclaration();
    bool skipDocumentType();
    /// Steps from the `start`, which is next, behind the `end`.
    bool skipThrough(std::string_view start, std::string_view end);

    Cursor cursor;
    std::vector<Problem>& problems;
    TagReader tags;
};

}  // namespace galley::web
