#include "cli/terminal/addSheet.h"

#include "xml/css/parseCss.h"

XCode CLI::XML::addSheet(StyleList& styles, String const& css) {
    StyleList rules;
    XCode result = parseCss(rules, css);
    if (!result) return result;
    for (auto const& rule : rules) styles.add(rule);
    return result;
}
