// How a box reads the style of its own element.

#include "xml/css/getNodeStyle.h"
#include "xml/layout/Box.h"

namespace CLI::XML {

String Box::getStyle(String const& property, String const& defaultValue) const {
    String value;
    return getNodeStyle(node, property, value) ? value : defaultValue;
}

String Box::getStyle2(String const& property, String const& fallbackProperty,
                      String const& defaultValue) const {
    String value;
    bool const found =
        getNodeStyle(node, property, value) || getNodeStyle(node, fallbackProperty, value);
    return found ? value : defaultValue;
}

int Box::getStyleInt2(String const& property, String const& fallbackProperty,
                      int defaultValue) const {
    String value;
    bool const found =
        getNodeStyle(node, property, value) || getNodeStyle(node, fallbackProperty, value);
    return found ? value.toInteger() : defaultValue;
}

}  // namespace CLI::XML
