#include "cli/files.h"

#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <memory>
#include <new>

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const {
        if (file != stdin) std::fclose(file);
    }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

/// Provides for the whole of a file that has a size, to no effect where it cannot.
void reserveSize(std::FILE* file, String& content) {
    struct stat status = {};
    bool const isKnown = fstat(fileno(file), &status) == 0 && S_ISREG(status.st_mode);
    if (isKnown && status.st_size <= INT_MAX) content.reserve(static_cast<int>(status.st_size));
}

/// Reads to the end; false, with `errno` set, on an error or where the text outgrows a String.
bool readAll(std::FILE* file, String& content) {
    reserveSize(file, content);
    char piece[65536];
    while (std::size_t const n = std::fread(piece, 1, sizeof piece, file)) {
        // At the end of what a person types, another attempt would wait for more.
        if (content.growFor(n)) {
            content.concat(piece, static_cast<int>(n));
            if (std::feof(file) != 0) break;
            continue;
        }
        if (n <= static_cast<std::size_t>(INT_MAX - content.length())) throw std::bad_alloc();
        errno = EFBIG;
        return false;
    }
    return std::ferror(file) == 0;
}

}  // namespace

int readFile(std::string const& name, String& content) {
    OpenFile const file(name == "-" ? stdin : std::fopen(name.c_str(), "rb"));
    if (!file || !readAll(file.get(), content)) return errno;
    return 0;
}

int writeOutput(std::string_view text) {
    bool const isDone = std::fwrite(text.data(), 1, text.length(), stdout) == text.length() &&
                        std::fflush(stdout) == 0;
    return isDone ? 0 : errno;
}
