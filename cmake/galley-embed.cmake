#[[
galley_embed(TARGET <target> DOCUMENT <file> [SHEET <file>...] NAME <function>)

Compiles a document and its sheets into <target>, a target of the same directory: after
`#include "<function>.h"` a call of `<function>()` prints the page on standard output, at the width
of its terminal. The header says the rest. Only `#include "..."` finds it, so that it may have the
name of a header of the system.

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
        if("${arg_${keyword}}" STREQUAL "")
            message(FATAL_ERROR "galley_embed: ${keyword} is missing")
        endif()
    endforeach()
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "galley_embed: what is '${arg_UNPARSED_ARGUMENTS}'?")
    endif()
    if(NOT TARGET "${arg_TARGET}")
        message(FATAL_ERROR "galley_embed: there is no target ${arg_TARGET}")
    endif()
    get_target_property(aliased ${arg_TARGET} ALIASED_TARGET)
    if(aliased)
        set(arg_TARGET ${aliased})
    endif()
    get_target_property(type ${arg_TARGET} TYPE)
    if(NOT type MATCHES "^(EXECUTABLE|(STATIC|SHARED|MODULE|OBJECT)_LIBRARY)$")
        message(FATAL_ERROR "galley_embed: ${arg_TARGET} has no sources to compile (${type})")
    endif()
    if(NOT arg_NAME MATCHES "^[A-Za-z_][A-Za-z0-9_]*$")
        message(FATAL_ERROR "galley_embed: '${arg_NAME}' is not an identifier of C++")
    endif()
    # The keywords of C++, and the function that every program has.
    set(reserved
        alignas alignof and and_eq asm auto bitand bitor bool break case catch char char8_t char16_t
        char32_t class co_await co_return co_yield compl concept const const_cast consteval
        constexpr constinit continue decltype default delete do double dynamic_cast else enum
        explicit export extern false float for friend goto if inline int long main mutable namespace
        new noexcept not not_eq nullptr operator or or_eq private protected public register
        reinterpret_cast requires return short signed sizeof static static_assert static_cast struct
        switch template this thread_local throw true try typedef typeid typename union unsigned
        using virtual void volatile wchar_t while xor xor_eq)
    if(arg_NAME IN_LIST reserved)
        message(FATAL_ERROR "galley_embed: '${arg_NAME}' is a name that C++ keeps for itself")
    endif()
    # In a list, that of a name has a backslash before it.
    if(arg_DOCUMENT MATCHES ";" OR arg_SHEET MATCHES "\\\\;")
        message(FATAL_ERROR "galley_embed: the name of a file has a semicolon in it")
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
    target_compile_options(${arg_TARGET} PRIVATE
        "$<$<COMPILE_LANGUAGE:CXX>:SHELL:-iquote \"${folder}\">")
    target_link_libraries(${arg_TARGET} PRIVATE galley::galley)
endfunction()
