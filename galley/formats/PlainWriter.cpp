#include "galley/formats/PlainWriter.h"

#include "base/append.h"

namespace galley {

void PlainWriter::take(web::Row const& row) {
    std::string_view const text = row.text();
    // Where all are blanks, 0 behind npos.
    CLI::XML::append(out, text.substr(0, text.find_last_not_of(' ') + 1), "\n");
}

}  // namespace galley
