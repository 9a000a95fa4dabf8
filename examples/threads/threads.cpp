// Renders a page at several widths at once. The style sheet is parsed once, for all threads.

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "xml/xml.h"

int main() {
    using namespace CLI::XML;
    StyleList styles;
    XCode const parsed = parseCss(styles, "p { border-width: 1; border-style: .; }");
    if (!parsed) {
        std::fputs(parsed.getString().c_str(), stderr);
        return 1;
    }
    constexpr unsigned s_widths[] = {12, 20, 48};
    constexpr std::size_t s_pages = std::size(s_widths);
    String pages[s_pages];
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < s_pages; ++i) {
            threads.emplace_back([&, i] {
                String const markup("<p>The same words, broken where the line ends.</p>");
                xmlToText(pages[i], markup, styles, s_widths[i]);
            });
        }
    }
    for (String const& page : pages) std::fputs(page.c_str(), stdout);
    return 0;
}
