# What `cmake --install` puts where: the library and its headers, a CMake package with what embeds
# pages, a file for pkg-config, and the tool with its manual page and completions.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/galley)
set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

set(libraries galley)
set(pc_packages galley galley-xml)
if(BUILD_SHARED_LIBS)
    list(APPEND libraries galley-c)
    list(APPEND pc_packages galley-c)
endif()

# For who wants to install and not to test.
add_custom_target(galley_installed DEPENDS ${libraries} galley-embed)

install(TARGETS ${libraries} EXPORT galley-targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(TARGETS galley-xml EXPORT galley-targets
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/galley COMPONENT development)
install(TARGETS galley-embed EXPORT galley-targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/galley COMPONENT development)
install(EXPORT galley-targets NAMESPACE galley:: DESTINATION ${package_dir} COMPONENT development)

configure_package_config_file(cmake/galley-config.cmake.in galley-config.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(galley-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/galley-config.cmake
              ${PROJECT_BINARY_DIR}/galley-config-version.cmake
              cmake/galley-embed.cmake
              cmake/galley-embed.h.in
    DESTINATION ${package_dir} COMPONENT development)

# The file finds its prefix from where it stands, so that a tree can be moved, unless the folders are
# given whole.
file(RELATIVE_PATH prefix_from_pc /${pc_dir} /)
set(GALLEY_PC_PREFIX "\${pcfiledir}/${prefix_from_pc}")
set(GALLEY_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
set(GALLEY_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR} OR IS_ABSOLUTE ${CMAKE_INSTALL_INCLUDEDIR})
    set(GALLEY_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
    set(GALLEY_PC_LIBDIR ${CMAKE_INSTALL_FULL_LIBDIR})
    set(GALLEY_PC_INCLUDEDIR ${CMAKE_INSTALL_FULL_INCLUDEDIR})
endif()
foreach(package ${pc_packages})
    configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc
        DESTINATION ${pc_dir} COMPONENT development)
endforeach()

if(GALLEY_BUILD_TOOL)
    add_dependencies(galley_installed galley-cli galley_manual_pages)
    install(TARGETS galley-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
    set(manual ${PROJECT_BINARY_DIR}/manual)
    set(share ${CMAKE_INSTALL_DATADIR})
    install(FILES ${manual}/man/galley.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
    install(FILES docs/galley.7 docs/galley-core.7
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man7 COMPONENT tool)
    install(FILES ${manual}/bash/galley
        DESTINATION ${share}/bash-completion/completions COMPONENT tool)
    # Debian's zsh looks for those of packages in a folder of their own.
    install(CODE "
        set(folder site-functions)
        if(CMAKE_INSTALL_PREFIX MATCHES \"/usr$\")
            set(folder vendor-completions)
        endif()
        file(INSTALL \"${manual}/zsh/_galley\"
            DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${share}/zsh/\${folder}\")
        " COMPONENT tool)
    install(FILES ${manual}/fish/galley.fish
        DESTINATION ${share}/fish/vendor_completions.d COMPONENT tool)
endif()

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright COMPONENT tool)
