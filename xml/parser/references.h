#pragma once

#include "../../base/String.h"
#include "../../base/export.h"

namespace CLI::XML {

/// An entity name and the text that it stands for; a table of them ends with a pair of nulls.
struct EntityReplacement {
    char const* name;  ///< Without ampersand and semicolon.
    char const* text;  ///< Ended by a NUL.
};

/// Decodes the character references of `text`: each ampersand, name and next semicolon after the
/// ampersand becomes what `table` says of the name, compared exactly, or nothing for a name that
/// is not in it. What was put in is not scanned again; an ampersand without a semicolon after it
/// stays as it is.
GALLEY_EXPORT String decodeReferences(String const& text, EntityReplacement const* table);

}  // namespace CLI::XML
