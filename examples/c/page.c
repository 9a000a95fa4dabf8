/* Prints a page from C. */

#include <galley/c.h>
#include <stdio.h>
#include <string.h>

int main(void) {
    char const* css = "p { color: green; margin-left: 2ch }";
    char const* markup = "<p>Hello, terminal</p>";
    galley_report* report = NULL;
    galley_sheet* sheet = galley_sheet_new();
    char* page = NULL;
    if (galley_sheet_add(sheet, css, strlen(css), "page.css", 0, &report)) {
        page = galley_render(markup, strlen(markup), sheet, NULL, NULL, &report);
    }
    if (page != NULL) {
        fputs(page, stdout);
    } else if (report != NULL) {
        fputs(galley_report_text(report, 0), stderr);
    }
    galley_sheet_free(sheet);
    galley_report_free(report);
    int status = page != NULL ? 0 : 1;
    galley_free(page);
    return status;
}
