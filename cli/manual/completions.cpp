// What shells offer behind "galley".

#include <string>

#include "cli/manual/OptionWords.h"
#include "cli/manual/manual.h"

namespace {

/// Between two arguments for zsh.
constexpr char const* s_nextSpec = " \\\n    ";

/// `text` with a backslash before each of `special`.
std::string escape(std::string const& text, std::string const& special) {
    std::string escaped;
    for (char const c : text) {
        if (special.find(c) != std::string::npos) escaped += '\\';
        escaped += c;
    }
    return escaped;
}

/// `text` as one word of a script, for any of the shells.
std::string quoted(std::string const& text) {
    std::string word = "'";
    for (char const c : text) word += c == '\'' ? "'\\''" : std::string(1, c);
    return word + "'";
}

/// The names with `separator` between them.
std::string joinedNames(OptionEntry const& entry, std::string const& separator) {
    std::string names;
    for (std::string const& name : optionNames(entry)) {
        names += (names.empty() ? "" : separator) + name;
    }
    return names;
}

std::string bashCase(OptionEntry const& entry) {
    std::string const words = choiceWords(entry);
    // Of files bash knows more by default, but not behind a short name in the same word.
    std::string action = "[[ -z $before ]] || _galley_offer -f";
    if (entry.argument == "N") action = "compopt +o default 2>/dev/null";
    if (entry.argument == "DIR") action = "compopt -o filenames 2>/dev/null; _galley_offer -d";
    if (!words.empty()) action = "_galley_offer -W " + quoted(words);
    return "        " + joinedNames(entry, " | ") + ") " + action + "; return ;;\n";
}

std::string zshAction(OptionEntry const& entry) {
    std::string const words = choiceWords(entry);
    if (!words.empty()) return "(" + words + ")";
    if (entry.argument == "N") return " ";
    return entry.argument == "DIR" ? "_files -/" : "_files";
}

/// An argument for each name of the option, which exclude one another unless it may be repeated. A
/// value stands behind the short name or in the same word, and behind the long one with or without
/// a "=".
std::string zshSpecs(OptionEntry const& entry) {
    if (!isOption(entry)) return quoted("*:document:_files");
    std::string const text = "[" + escape(shortDescription(entry), "[]:\\") + "]";
    std::string before = entry.shortName.empty() ? "" : "(" + joinedNames(entry, " ") + ")";
    if (entry.mayRepeat) before = "*";
    std::string specs;
    for (std::string const& name : optionNames(entry)) {
        std::string spec = before + name;
        if (!entry.argument.empty()) spec += name == entry.name ? "=" : "+";
        spec += text;
        if (!entry.argument.empty()) spec += ":" + entry.name.substr(2) + ":" + zshAction(entry);
        specs += (specs.empty() ? "" : s_nextSpec) + quoted(spec);
    }
    return specs;
}

std::string fishArgument(OptionEntry const& entry) {
    std::string const words = choiceWords(entry);
    if (entry.argument.empty()) return "";
    if (!words.empty()) return " -x -k -a " + quoted(words);
    if (entry.argument == "DIR") return " -x -a '(__fish_complete_directories)'";
    return entry.argument == "N" ? " -x" : " -r -F";
}

}  // namespace

std::string makeBashCompletion() {
    std::string names;
    std::string cases;
    std::string letters;
    for (OptionEntry const& entry : describeOptions()) {
        if (!isOption(entry)) continue;
        names += (names.empty() ? "" : " ") + joinedNames(entry, " ");
        if (entry.argument.empty()) continue;
        cases += bashCase(entry);
        if (!entry.shortName.empty()) letters += entry.shortName[1];
    }
    return "# Completions of galley for bash.\n\n"
           "_galley_offer() {\n"
           "    mapfile -t COMPREPLY < <(compgen -P \"$before\" \"$@\" -- \"$current\")\n"
           "}\n\n"
           "_galley() {\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}\n"
           "    local before= i\n"
           "    COMPREPLY=()\n"
           "    # Behind a bare \"--\" stand documents.\n"
           "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
           "        [[ ${COMP_WORDS[i]} != -- ]] || return\n"
           "    done\n"
           "    # bash takes \"--width=8\" for three words.\n"
           "    [[ $previous != = ]] || previous=${COMP_WORDS[COMP_CWORD - 2]}\n"
           "    if [[ $current == = ]]; then\n"
           "        previous=${COMP_WORDS[COMP_CWORD - 1]} current=\n"
           "    fi\n"
           "    # A short name may have its value in the same word.\n"
           "    if [[ $current == -[" +
           letters +
           "]?* ]]; then\n"
           "        before=${current:0:2} previous=${current:0:2} current=${current:2}\n"
           "    fi\n"
           "    case $previous in\n" +
           cases +
           "    esac\n"
           "    [[ $current != -* ]] || _galley_offer -W " +
           quoted(names) +
           "\n"
           "}\n\n"
           "complete -o default -F _galley galley\n";
}

std::string makeZshCompletion() {
    std::string script = "#compdef galley\n# Completions of galley for zsh.\n\n_arguments -s -S";
    for (OptionEntry const& entry : describeOptions()) {
        script += s_nextSpec + zshSpecs(entry);
    }
    return script + "\n";
}

std::string makeFishCompletion() {
    std::string script = "# Completions of galley for fish.\n\n";
    for (OptionEntry const& entry : describeOptions()) {
        if (!isOption(entry)) continue;
        script += "complete -c galley";
        if (!entry.shortName.empty()) script += " -s " + entry.shortName.substr(1);
        script += " -l " + entry.name.substr(2) + fishArgument(entry) + " -d " +
                  quoted(shortDescription(entry)) + "\n";
    }
    return script;
}
