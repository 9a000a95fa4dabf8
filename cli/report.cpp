#include "cli/report.h"

#include <cstdio>

std::string displayName(std::string const& file) { return file == "-" ? "<stdin>" : file; }

void reportError(std::string const& file, std::string const& message) {
    constexpr char const* s_digits = "0123456789";
    std::string const prefix = "Line ";
    std::size_t const start = message.compare(0, prefix.size(), prefix) == 0 ? prefix.size() : 0;
    std::size_t const end = message.find_first_not_of(s_digits, start);
    bool const hasLine =
        end != start && end != std::string::npos && message.compare(end, 2, ": ") == 0;
    std::string const place = hasLine ? file + ":" + message.substr(start, end - start) : file;
    std::string const text = hasLine ? message.substr(end + 2) : message;
    std::fprintf(stderr, "%s: error: %s\n", place.c_str(), text.c_str());
}
