#ifndef GALLEY_C_H
#define GALLEY_C_H

/** @file
 * Galley for C, and for every language that can call C: a document, styled by sheets, becomes a
 * page of text for a terminal. All texts are bytes in UTF-8, of the length that stands beside them;
 * those that come back end with a NUL, too.
 *
 *     galley_report *report = NULL;
 *     char *page = galley_render("<p>Hello</p>", 12, NULL, NULL, NULL, &report);
 *     fputs(page ? page : galley_report_text(report, 0), stdout);
 *     galley_free(page);
 *     galley_report_free(report);
 *
 * Nothing is global: any number of threads may call all of this, and may use one sheet as long as
 * none adds to it. Where a function takes a pointer to a report, NULL is for callers that do not
 * want one; where it fails, it leaves a report there, to be freed, and otherwise NULL. A report is
 * NULL, too, where there is no memory for it. */

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/** How a document becomes a page. Set `size` to sizeof(galley_options), and all that is not used to
 * zero: that is the default of each field, also of those that later versions add. */
typedef struct galley_options {
    size_t size;      /**< sizeof(galley_options) */
    unsigned width;   /**< in columns; 0: of the terminal on standard output, COLUMNS, or 80 */
    int color;        /**< galley_color */
    int format;       /**< galley_format */
    int theme;        /**< galley_theme */
    int dialect;      /**< galley_dialect */
    int standalone;   /**< not 0: html is a whole document */
    int raw;          /**< not 0: control characters stay, in the format ansi */
    char const* name; /**< of the document in errors; NULL: "<document>" */
    int links;        /**< galley_links */
    unsigned ambiguous_width; /**< cells of East Asian ambiguous characters: 2, or else 1 */
    int ascii_frames;         /**< not 0: frames are drawn with "+", "-", "|" and "=" */
} galley_options;

/** As galley::Color. */
enum galley_color {
    GALLEY_COLOR_AUTOMATIC,
    GALLEY_COLOR_ALWAYS,
    GALLEY_COLOR_NEVER,
    GALLEY_COLOR_16,
    GALLEY_COLOR_256,
    GALLEY_COLOR_24BIT
};
/** As galley::Links. */
enum galley_links {
    GALLEY_LINKS_AUTOMATIC,
    GALLEY_LINKS_ALWAYS,
    GALLEY_LINKS_NEVER,
    GALLEY_LINKS_LIST
};
/** As galley::Format. */
enum galley_format { GALLEY_ANSI, GALLEY_PLAIN, GALLEY_HTML, GALLEY_SVG };
/** As galley::Theme. */
enum galley_theme { GALLEY_THEME_AUTOMATIC, GALLEY_THEME_LIGHT, GALLEY_THEME_DARK };
/** As galley::Dialect. The default of a document is what it says itself, else web, as that of a
 * sheet. */
enum galley_dialect { GALLEY_DIALECT_DEFAULT, GALLEY_DIALECT_CORE, GALLEY_DIALECT_WEB };
/** As galley::Severity. */
enum galley_severity { GALLEY_ERROR, GALLEY_WARNING };

/** Style rules. NULL stands for none wherever a sheet is only used. */
typedef struct galley_sheet galley_sheet;

/** What is said about a document or a sheet: errors and warnings, in the order of the source. */
typedef struct galley_report galley_report;

/** A sheet without rules, to be freed; NULL where there is no memory. */
galley_sheet* galley_sheet_new(void);
/** Adds the rules of a text behind those that there are. `name`, which may be NULL, is what errors
 * call the text. Returns 1; on failure 0, with no rule added. */
int galley_sheet_add(galley_sheet* sheet, char const* css, size_t length, char const* name,
                     int dialect, galley_report** report);
/** Frees a sheet; NULL is none. */
void galley_sheet_free(galley_sheet* sheet);

/** The page of a document, as for standard output, to be freed with galley_free; NULL on failure.
 * Its length goes to `pageLength`, unless that is NULL. `options` may be NULL for the defaults. */
char* galley_render(char const* markup, size_t length, galley_sheet const* sheet,
                    galley_options const* options, size_t* pageLength, galley_report** report);
/** All that is wrong with a document, and what it and its sheet have without effect. A report to be
 * freed, also where nothing is; NULL where there is no memory for it. */
galley_report* galley_check(char const* markup, size_t length, galley_sheet const* sheet,
                            galley_options const* options);

/** The same of the text of a sheet, which may be at fault. */
galley_report* galley_check_sheet(char const* css, size_t length, char const* name, int dialect);

/** `text` as the content of an element, where it stands for itself. To be freed with galley_free;
 * NULL where there is no memory. */
char* galley_escape(char const* text, size_t length);
/** The same as the value of an attribute. */
char* galley_escape_attribute(char const* text, size_t length);

/** How many errors and warnings a report has; 0 for NULL. The functions below take an index less
 * than that. Their texts belong to the report. */
size_t galley_report_count(galley_report const* report);
int galley_report_severity(galley_report const* report, size_t i); /**< galley_severity */
/** In words, without the place. */
char const* galley_report_message(galley_report const* report, size_t i);
/** The name of the document or the sheet. */
char const* galley_report_source(galley_report const* report, size_t i);
/** From 1; 0 where it is about no place. */
unsigned galley_report_line(galley_report const* report, size_t i);
/** In characters, from 1; 0 where it is about no place. */
unsigned galley_report_column(galley_report const* report, size_t i);
/** All of it in lines, as a compiler prints it, with the line of the source. */
char const* galley_report_text(galley_report const* report, size_t i);

/** Frees a text that came back. */
void galley_free(char* text);
/** Frees a report with its texts; NULL is none. */
void galley_report_free(galley_report* report);

#ifdef __cplusplus
}
#endif

#endif
