# Debian packages of what is installed, made by `cpack -G DEB` in the folder of the build: what runs, what others
# build on, and what is read. ./dev package makes and tries them.
set(KV_PACKAGE_MAINTAINER "The maintainers <maintainers@kv-config-gui-mvc.invalid>" CACHE STRING "Whom Debian packages name")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kv-config-gui-mvc)
set(CPACK_PACKAGE_CONTACT "${KV_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "settings dialog of an H.264 multiview encoder")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development documentation)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME kv-config-gui-mvc)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION video)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The dialog as a library for host programs, reference companion libraries, and
the program kv-mvc-settings, which edits, checks, imports and exports settings.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME kv-config-gui-mvc-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers for host programs and for companion libraries such as encoders, in C
and C++; found with CMake and pkg-config.")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME kv-config-gui-mvc-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION "Manuals for hosts and companion libraries, the rules of the reference encoder,
and example programs.")

# What a package has besides: each its changelog, and the licence when the owner has given one.
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/KvPackageDocuments.cmake")
include(CPack)
