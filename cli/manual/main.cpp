// Prints the manual page, or the completions for a shell: galley-manual man|bash|zsh|fish

#include <cstdio>
#include <cstring>
#include <string>

#include "cli/manual/manual.h"

namespace {

struct Kind {
    char const* name;
    std::string (*make)();
};

constexpr Kind s_kinds[] = {
    {"man", makeManPage},
    {"bash", makeBashCompletion},
    {"zsh", makeZshCompletion},
    {"fish", makeFishCompletion},
};

}  // namespace

int main(int argc, char** argv) {
    for (Kind const& kind : s_kinds) {
        if (argc != 2 || std::strcmp(argv[1], kind.name) != 0) continue;
        return std::fputs(kind.make().c_str(), stdout) < 0 || std::fflush(stdout) != 0 ? 1 : 0;
    }
    std::fputs("usage: galley-manual man|bash|zsh|fish\n", stderr);
    return 2;
}
