# What `cpack -G DEB` makes of what is installed: a Debian package of each component.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The Galley authors <galley@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
# Whatever the umask says.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian.cmake)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE galley)
# Of the packaging, begins anew with each version of galley.
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(about
"Galley turns documents in a small XML/XHTML subset, styled by a small CSS
subset, into text for a terminal: blocks, wrapped words, tables, borders and
colours.
.
")

set(CPACK_COMPONENTS_ALL development)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libgalley-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
"renderer of styled pages of text for terminals (development files)
${about}This package holds what programs are built with that make such pages or
that have them compiled in.")
if(GALLEY_JEMALLOC)
    # Programs are linked with it by name.
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS libjemalloc-dev)
endif()

if(BUILD_SHARED_LIBS)
    list(APPEND CPACK_COMPONENTS_ALL library)
    set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libgalley${GALLEY_SOVERSION})
    set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
    set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
"renderer of styled pages of text for terminals (shared library)
${about}This package holds the library that programs load.")
    # CPack would add scripts to the packages of libraries that it finds; cmake/debian.cmake does
    # without.
    set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS OFF)
    set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
endif()

if(GALLEY_BUILD_TOOL)
    list(APPEND CPACK_COMPONENTS_ALL tool)
    set(CPACK_DEBIAN_TOOL_PACKAGE_NAME galley)
    set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION text)
    set(CPACK_COMPONENT_TOOL_DESCRIPTION
"render styled pages of text for a terminal
${about}This package holds the tool for files and pipes, which also checks documents,
shows them as they are being written, and makes HTML and pictures of them.")
endif()
include(CPack)
