# Runs in CPack once all that goes into the packages is installed. Adds what Debian asks for in each
# of them, and the control files of libraries, which CPack would make scripts instead of: of a package
# with a script for its removal something stays when it is removed.

if(NOT CPACK_PACKAGING_INSTALL_PREFIX STREQUAL "/usr")
    message(FATAL_ERROR
        "Debian's packages live in /usr: configure with -DCMAKE_INSTALL_PREFIX=/usr")
endif()
find_program(GZIP gzip REQUIRED)
find_program(SHLIBDEPS dpkg-shlibdeps REQUIRED)

# A file for everybody to read.
function(add file text)
    file(WRITE ${file} "${text}")
    file(CHMOD ${file} PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

file(READ ${CMAKE_CURRENT_LIST_DIR}/../LICENSE license)
file(READ ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md changes)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(version ${CPACK_PACKAGE_VERSION})
string(CONCAT packaging
    "galley (${version}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium\n\n"
    "  * Packages of version ${version}.\n\n"
    " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr/share)
    set(doc ${share}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    add(${doc}/copyright "${license}")
    add(${doc}/changelog "${changes}")
    add(${doc}/changelog.Debian "${packaging}")
    add(${share}/lintian/overrides/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
        "# Nobody has asked Debian for it.\ninitial-upload-closes-no-bugs\n")
    file(GLOB pages ${share}/man/man*/*)
    execute_process(COMMAND ${GZIP} -9 --no-name ${doc}/changelog ${doc}/changelog.Debian ${pages}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

set(control ${CPACK_TEMPORARY_DIRECTORY}/control)
set(name ${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME})
file(GLOB links ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/library/usr/lib/*/*.so.*)
set(shlibs "")
set(libraries "")
foreach(link IN LISTS links)
    if(IS_SYMLINK ${link} AND link MATCHES "/([^/]+)\\.so\\.([0-9]+)$")
        string(APPEND shlibs "${CMAKE_MATCH_1} ${CMAKE_MATCH_2} ${name} (>= ${version})\n")
        list(APPEND libraries ${link})
    endif()
endforeach()
if(libraries)
    file(WRITE ${control}/shlibs "${shlibs}")
    file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
    set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${control}/shlibs ${control}/triggers)
    # It wants to run where a source package is.
    file(WRITE ${control}/debian/control "")
    list(GET libraries 0 folder)
    cmake_path(GET folder PARENT_PATH folder)
    # The libraries may need each other.
    execute_process(COMMAND ${SHLIBDEPS} -O -l${folder} -L${control}/shlibs -x${name} ${libraries}
        WORKING_DIRECTORY ${control}
        OUTPUT_VARIABLE needed
        OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "shlibs:Depends=" "" CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "${needed}")
endif()
