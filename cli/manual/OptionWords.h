#pragma once

#include <string>

#include "cli/Options.h"

/// The words that may stand behind an option, with spaces between them; empty where it takes none
/// in particular.
std::string choiceWords(OptionEntry const& entry);

/// The first main clause of a description, for where there is little room.
std::string shortDescription(OptionEntry const& entry);

/// Whether it is an option and not the documents.
bool isOption(OptionEntry const& entry);
