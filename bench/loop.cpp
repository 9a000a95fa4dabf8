// The least that printing prose takes: reads a document, fills lines of 80 columns with the words
// between its tags and writes them, with huge pages under both texts.
//   galley-loop FILE

#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/hugePages.h"

namespace {

constexpr std::ptrdiff_t s_width = 80;

/// Memory for a text, null where there is none.
char* allocate(std::size_t size) {
    auto* const text = static_cast<char*>(std::malloc(size));
    if (text != nullptr) preferHugePages(text, size);
    return text;
}

bool isSpace(char c) { return c == ' ' || c == '\n'; }

/// Writes the text of a document to `out` and returns where it ends there.
char* wrap(char const* next, char const* end, char* out) {
    char* line = out;
    while (next < end) {
        if (*next == '<') {
            next = static_cast<char const*>(
                std::memchr(next, '>', static_cast<std::size_t>(end - next)));
            if (next == nullptr) break;
            ++next;
            if (out != line) *out++ = '\n';
            line = out;
            continue;
        }
        if (isSpace(*next)) {
            ++next;
            continue;
        }
        char const* const word = next;
        while (next < end && *next != '<' && !isSpace(*next)) ++next;
        bool const isFollowed = next < end && isSpace(*next);
        std::ptrdiff_t const length = next - word + (isFollowed ? 1 : 0);
        if (out != line && out - line + length > s_width) {
            *out++ = '\n';
            line = out;
        }
        std::memcpy(out, word, static_cast<std::size_t>(next - word));
        out += next - word;
        if (isFollowed) *out++ = ' ';
    }
    if (out != line) *out++ = '\n';
    return out;
}

}  // namespace

int main(int argc, char** argv) {
    struct stat status = {};
    if (argc != 2 || stat(argv[1], &status) != 0) return 2;
    auto const size = static_cast<std::size_t>(status.st_size);
    char* const document = allocate(size);
    // A line feed for each word at most.
    char* const page = allocate(2 * size + 1);
    std::FILE* const file = std::fopen(argv[1], "rb");
    if (document == nullptr || page == nullptr || file == nullptr) return 2;
    if (std::fread(document, 1, size, file) != size) return 2;
    std::fclose(file);
    char const* const end = wrap(document, document + size, page);
    auto const length = static_cast<std::size_t>(end - page);
    bool const isWritten = std::fwrite(page, 1, length, stdout) == length;
    std::free(document);
    std::free(page);
    return isWritten ? 0 : 1;
}
