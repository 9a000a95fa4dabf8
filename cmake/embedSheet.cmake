# cmake -DSHEET=<file> -DOUTPUT=<file> -P embedSheet.cmake
#
# Writes the source of the function that web/defaultSheet.h declares.
file(READ "${SHEET}" text)
file(WRITE "${OUTPUT}" "// Made of web/default.css.
#include \"web/defaultSheet.h\"

namespace galley::web {

std::string_view defaultSheetText() {
    return R\"css(${text})css\";
}

}  // namespace galley::web
")
