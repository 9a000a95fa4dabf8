#include <cstdio>

#include "xml/xml.h"

int main() {
    CLI::XML::StyleList styles;
    String page;
    XCode result = CLI::XML::parseCss(styles, "p { border-width: 1; padding-left: 2; }");
    if (result) result = CLI::XML::xmlToText(page, "<p>Hello, terminal</p>", styles, 80);
    std::fputs(result ? page.c_str() : result.getString().c_str(), stdout);
    return result ? 0 : 1;
}
