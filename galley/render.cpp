#include <cerrno>
#include <cstring>
#include <string>

#include "base/append.h"
#include "galley/failure.h"
#include "galley/galley.h"
#include "galley/page.h"

namespace galley {

namespace {

/// The page of `markup`, for `out`, as the library's own text.
Result<String> pageOf(std::string_view markup, Sheet const& sheet, Options const& options,
                      std::FILE* out) {
    return guarded(options.name, [&]() -> Result<String> {
        String text;
        CLI::XML::append(text, markup);
        String page;
        Result<void> const made = makePage(page, text, sheet, settle(options, out));
        if (!made) return Result<String>(made.errors());
        return page;
    });
}

}  // namespace

Result<std::string> render(std::string_view markup, Sheet const& sheet, Options const& options) {
    return guarded(options.name, [&]() -> Result<std::string> {
        Result<String> const page = pageOf(markup, sheet, options, stdout);
        if (!page) return Result<std::string>(page.errors());
        return std::string(page->view());
    });
}

Result<void> print(std::string_view markup, Sheet const& sheet, Options const& options,
                   std::FILE* out) {
    return guarded(options.name, [&]() -> Result<void> {
        Result<String> const page = pageOf(markup, sheet, options, out);
        if (!page) return Result<void>(page.errors());
        std::string_view const text = page->view();
        errno = 0;
        bool const isWritten = std::fwrite(text.data(), 1, text.length(), out) == text.length() &&
                               std::fflush(out) == 0;
        if (isWritten) return {};
        char const* const reason = errno != 0 ? std::strerror(errno) : "Cannot write";
        return Result<void>(failure(out == stdout ? "<stdout>" : "<output>", reason));
    });
}

}  // namespace galley
