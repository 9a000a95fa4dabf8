// Renders a page at several widths at once. The sheet is parsed once, for all threads.

#include <galley/galley.h>

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

int main() {
    auto const sheet = galley::Sheet::parse("p { border: solid }");
    constexpr unsigned widths[] = {12, 20, 48};
    std::vector<std::string> pages(std::size(widths));
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        threads.emplace_back([&, i] {
            galley::Options options;
            options.width = widths[i];
            pages[i] = galley::render("<p>The same words, broken where the line ends.</p>",
                                      sheet.value(), options)
                           .value();
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (std::string const& page : pages) std::fputs(page.c_str(), stdout);
    return 0;
}
