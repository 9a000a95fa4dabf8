#[[
galley_embed(TARGET <target> DOCUMENT <file> [SHEET <file>...] NAME <function>)

Compiles a document and its sheets into <target>, a target of the same directory: after
`#include "<function>.h"` a call of `<function>()` prints the page on standard output, at the width
of its terminal. The header says the rest.

The files are checked whenever <target> is built and one of them has changed. A fault breaks the
build with "FILE:LINE: error: TEXT" and the line, where FILE is the name as it is given here: one
below the current source directory, or an absolute one.

Where this machine cannot run what is built, GALLEY_EMBED_PROGRAM names a galley-embed of the same
version that it can.
#]]

set(GALLEY_EMBED_PROGRAM "" CACHE FILEPATH
    "The galley-embed to run, in place of the one that belongs to galley")
mark_as_advanced(GALLEY_EMBED_PROGRAM)

function(galley_embed)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "TARGET;DOCUMENT;NAME" "SHEET")
    foreach(keyword TARGET DOCUMENT NAME)
        if(NOT arg_${keyword})
            message(FATAL_ERROR "galley_embed: ${keyword} is missing")
        endif()
    endforeach()
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "galley_embed: what is '${arg_UNPARSED_ARGUMENTS}'?")
    endif()
    if(NOT TARGET ${arg_TARGET})
        message(FATAL_ERROR "galley_embed: there is no target ${arg_TARGET}")
    endif()
    if(NOT arg_NAME MATCHES "^[A-Za-z_][A-Za-z0-9_]*$")
        message(FATAL_ERROR "galley_embed: '${arg_NAME}' is not an identifier of C++")
    endif()

    set(program galley::embed)
    if(GALLEY_EMBED_PROGRAM)
        set(program ${GALLEY_EMBED_PROGRAM})
    endif()
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/galley-embed/${arg_TARGET})
    set(source ${folder}/${arg_NAME}.cpp)
    # The header has nothing of the files in it, and stays when they change.
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/galley-embed.h.in ${folder}/${arg_NAME}.h
        @ONLY)
    add_custom_command(OUTPUT ${source}
        COMMAND ${program} ${source} ${arg_NAME} ${arg_DOCUMENT} ${arg_SHEET}
        DEPENDS ${program} ${arg_DOCUMENT} ${arg_SHEET}
        WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}
        COMMENT "Embedding ${arg_DOCUMENT}"
        VERBATIM)
    target_sources(${arg_TARGET} PRIVATE ${source})
    target_include_directories(${arg_TARGET} PRIVATE ${folder})
    target_link_libraries(${arg_TARGET} PRIVATE galley::terminal)
endfunction()
