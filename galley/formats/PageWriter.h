#pragma once

#include <memory>

#include "base/String.h"
#include "galley/galley.h"
#include "galley/terminal/ColourDepth.h"
#include "web/DocumentInfo.h"
#include "web/flow/Row.h"

namespace galley {

/// Writes the rows of a page in a format. All operations throw std::bad_alloc where there is no
/// memory for that.
class PageWriter : public web::RowSink {
public:
    /// To be called before `finish`, where more is known of the document than its name.
    virtual void describe(web::DocumentInfo const& /*document*/) {}
    /// Adds what comes behind the last row. Until then what is written is no page.
    virtual void finish() = 0;
};

/// A writer that appends a page of clusters to `page`, which outlives it; the format `ansi` has no
/// more colours than so many. The options are settled, and not needed any more when it is made.
std::unique_ptr<PageWriter> makePageWriter(String& page, Options const& options, ColourDepth depth);

/// Puts a page of the core in the format that the settled options name, in its own place. In the
/// format `ansi` it stays as it is. Throws std::bad_alloc where there is no memory for that.
void rewritePage(String& page, Options const& options);

}  // namespace galley
