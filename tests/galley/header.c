/* The header is C, and complete in itself. */

#include <galley/c.h>

int usesHeader(void);
int usesHeader(void) {
    galley_options options = {sizeof(galley_options), 80, GALLEY_COLOR_NEVER, GALLEY_PLAIN,
                              GALLEY_THEME_LIGHT, GALLEY_DIALECT_CORE, 0, 0, "page.xml"};
    return galley_render("x", 1, NULL, &options, NULL, NULL) != NULL;
}
