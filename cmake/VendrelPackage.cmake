set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vendrel)
set(CPACK_PACKAGE_CONTACT "The Vendrel developers <vendrel@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turns a photograph into a paint-by-symbol kit")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Vendrel makes kits for hobby painters: a sheet of outlined areas with
one symbol for each paint, and the painted picture to look at. It uses only
the paints that are allowed, can keep every area large enough for a brush, and
prints plans with a chart of the paints to buy.
.
Kits are made in a window, where they can be touched up, or by a command.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(VENDREL_QT)
    # Opened at run time, so that no library dependency shows them: WebP and TIFF decoders, and the
    # fonts of chart and plan. That on libheif, for HEIC and AVIF, is found by itself.
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, qt6-image-formats-plugins")
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# The same sources give the same package: its files are as old as the last commit.
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/VendrelPackageDate.cmake)
include(CPack)
