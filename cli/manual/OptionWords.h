#pragma once

#include <string>
#include <vector>

#include "cli/describe.h"

/// The words that may stand behind an option, with spaces between them; empty where it takes none
/// in particular.
std::string choiceWords(OptionEntry const& entry);

/// The first main clause of a description, for where there is little room.
std::string shortDescription(OptionEntry const& entry);

/// The names that it goes by, the short one first.
std::vector<std::string> optionNames(OptionEntry const& entry);

/// Whether it is an option and not the documents.
bool isOption(OptionEntry const& entry);
