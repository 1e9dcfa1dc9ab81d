set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vendrel)
set(CPACK_PACKAGE_CONTACT "The Vendrel developers <vendrel@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Turns a photograph into a paint-by-symbol kit")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(VENDREL_QT)
    # Loaded at run time, so that no library dependency shows them: WebP and TIFF decoders. That on
    # libheif, for HEIC and AVIF, is found by itself.
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-image-formats-plugins")
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
