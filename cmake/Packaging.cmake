# SPDX-License-Identifier: GPL-3.0-or-later
# `cpack` in a build directory makes the Debian packages: the program, and the library with what is built against it.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGE_NAME lumora)
set(CPACK_PACKAGE_VENDOR Dovrel)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_NAME} built using CMake") # CPack's own: each package has one of its own
set(CPACK_PACKAGE_CONTACT "Dovrel <lumora@dovrel.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE lumora)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://lumora.dovrel.example/)
# The libraries that a program links are found by dpkg-shlibdeps; what it loads at run time is named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(engine_libraries)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${engine_libraries})
endif()

find_program(gzip gzip REQUIRED)
execute_process(COMMAND ${gzip} -9nc ${CMAKE_SOURCE_DIR}/resources/debian/changelog
    OUTPUT_FILE ${CMAKE_BINARY_DIR}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)

# A component of the installation becomes the package of that name.
function(add_package component name section)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} PARENT_SCOPE)
    string(TOUPPER ${component} id)
    set(CPACK_DEBIAN_${id}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    install(FILES ${CMAKE_SOURCE_DIR}/resources/debian/copyright ${CMAKE_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
endfunction()

add_package(program lumora graphics)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "photo looks: one photo, many looks, a JPEG file
Lumora opens one photo, shows it under each of its looks, crops it, puts a
border round it and saves it as a JPEG.")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS
    "qt6-image-formats-plugins, qt6-translations-l10n, qt6-wayland, qt6-xdgdesktopportal-platformtheme, xdg-utils")

if(LUMORA_LIBRARY)
    add_package(library liblumora1 libs)
    set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "photo looks on pixels in memory
This library applies the looks of Lumora, exact to the byte, for other
programs.")
    # What packages that are built against it depend on, and that the loader is to learn of it.
    file(WRITE ${CMAKE_BINARY_DIR}/debian/shlibs "liblumora 1 liblumora1 (>= ${PROJECT_VERSION})\n")
    file(WRITE ${CMAKE_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
    set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_BINARY_DIR}/debian/shlibs ${CMAKE_BINARY_DIR}/debian/triggers)
    install(FILES resources/debian/liblumora1.overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        COMPONENT library RENAME liblumora1)

    add_package(development lumora-dev libdevel)
    set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "photo looks on pixels in memory (what programs are built with)
The header, the files for pkg-config and CMake, and examples in C and Python,
for programs that use the looks of Lumora.")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "liblumora1 (= ${PROJECT_VERSION})")
    install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/lumora-dev/examples COMPONENT development
        USE_SOURCE_PERMISSIONS FILES_MATCHING PATTERN *.c PATTERN *.py)
endif()
include(CPack)
