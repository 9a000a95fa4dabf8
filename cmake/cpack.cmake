# What `cpack -G DEB` makes of what is installed: one Debian package.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The Galley authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "render styled pages of text for a terminal")
set(CPACK_PACKAGE_DESCRIPTION
"Galley turns documents in a small XML/XHTML subset, styled by a small CSS subset, into text for
a terminal: blocks, wrapped words, tables, borders and colours. This package holds the tool, the
library, and what is needed to build programs with it or with pages in them.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Whatever the umask says.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The cache of the loader is renewed when the package comes and goes.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(GALLEY_JEMALLOC)
    # Programs are linked with it by name.
    set(CPACK_DEBIAN_PACKAGE_DEPENDS libjemalloc-dev)
endif()
include(CPack)
