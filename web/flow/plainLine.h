#pragma once

#include "web/flow/LineBreaker.h"

namespace galley::web {

/// The line of a plain paragraph that begins at a place, of at most so many columns where it can
/// be: what `LineBreaker` comes to by its rules for all paragraphs, found by a search for blanks,
/// since most paragraphs are plain.
TextLine plainLine(Paragraph const& paragraph, Place from, int columns, bool mayPartWords);

}  // namespace galley::web
