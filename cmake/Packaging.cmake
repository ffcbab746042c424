# `cpack` in a build directory makes the Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lumora)
set(CPACK_PACKAGE_VENDOR Dovrel)
set(CPACK_PACKAGE_CONTACT "Dovrel <lumora@dovrel.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "photo looks: one photo, many looks, a JPEG file")
set(CPACK_PACKAGE_DESCRIPTION
    "Lumora opens one photo, shows it under each of its looks, crops it, puts a border round it and saves it as a JPEG.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
# The libraries that the program links are found by dpkg-shlibdeps; what it loads at run time is named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(engine_libraries)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${engine_libraries})
endif()
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-image-formats-plugins, qt6-wayland, xdg-utils")
include(CPack)
