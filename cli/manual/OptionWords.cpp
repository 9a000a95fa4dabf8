#include "cli/manual/OptionWords.h"

#include <algorithm>

std::string choiceWords(OptionEntry const& entry) {
    if (entry.argument.find('|') == std::string::npos) return "";
    std::string words = entry.argument;
    std::replace(words.begin(), words.end(), '|', ' ');
    return words;
}

std::string shortDescription(OptionEntry const& entry) {
    std::string const& text = entry.description;
    std::size_t const end =
        std::min({text.find(';'), text.find(':'), text.find(" ("), text.find(". ")});
    return text.substr(0, end);
}

bool isOption(OptionEntry const& entry) { return entry.name.compare(0, 2, "--") == 0; }

std::vector<std::string> optionNames(OptionEntry const& entry) {
    if (entry.shortName.empty()) return {entry.name};
    return {entry.shortName, entry.name};
}
