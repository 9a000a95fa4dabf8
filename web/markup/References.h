#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "web/Problem.h"

namespace galley::web {

/// Reads text that may have references, part by part: bytes that stand for themselves, and what a
/// reference stands for. An ampersand that begins none, or one of an unknown name, stands for
/// itself, with a warning.
class References {
public:
    /// `offset` is that of the text, in bytes from the start of the document. Text and list must
    /// outlive it.
    References(std::string_view text, std::size_t offset, std::vector<Problem>& found)
        : source(text), sourceOffset(offset), problems(found) {}

    struct Part {
        /// Never empty. Until the next part is read.
        std::string_view text;
        /// In bytes from the start of the document.
        std::size_t offset = 0;
        bool isReference = false;
    };

    /// False once there is none.
    bool next(Part& part);

private:
    /// Steps behind a reference that stands for something else; false where there is none.
    bool readReference();

    std::string_view source;
    std::size_t sourceOffset;
    std::vector<Problem>& problems;
    std::size_t at = 0;
    /// What the last reference stands for.
    std::string decoded;
};

/// Appends the text with its references replaced, which is not longer.
void decodeReferences(std::string_view text, std::size_t offset, std::string& decoded,
                      std::vector<Problem>& problems);

/// Whether the value of an attribute is not what is written.
bool isEncodedValue(std::string_view value);

/// The same of the value of an attribute. There each tab and each byte of a line end is a blank,
/// unless it is a reference.
void decodeValue(std::string_view value, std::size_t offset, std::string& decoded,
                 std::vector<Problem>& problems);

}  // namespace galley::web
