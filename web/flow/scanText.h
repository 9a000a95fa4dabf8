#pragma once

#include "web/flow/TextBreaker.h"

namespace galley::web {

/// Cells of the text of an item from a place in it on, as far as they pass a number.
int widthFrom(Paragraph const& paragraph, Place place, int most);

/// The part of a text from a place on for which there is room, or the least, without a hyphen.
/// Whether a line may end behind it is not said if the text ends with it.
TextPart scanText(Paragraph const& paragraph, TextBreaker& texts, Place begin, int room,
                  Parting parting);

}  // namespace galley::web
