# Debian packages, one per install component (`cpack -G DEB` in a build configured with
# -DCMAKE_INSTALL_PREFIX=/usr; scripts/run-package.sh does both):
#
#   application  -> zelkon                the wizard, zelkonctl, desktop integration, man
#                                         pages, examples, the schema, the time zone table
#                                         and the translations (share/zelkon/translations,
#                                         installed with COMPONENT application)
#   runtime      -> libtavlozelkon-lib2   the shared libraries (named after the main soname)
#   development  -> libtavlozelkon-dev    headers, .so links and the CMake package
#
# Every install() names one of these components: anything else would not be packaged.

set(ZELKON_DEB_APPLICATION_PACKAGE zelkon)
set(ZELKON_DEB_RUNTIME_PACKAGE libtavlozelkon-lib${PROJECT_VERSION_MAJOR})
set(ZELKON_DEB_DEVELOPMENT_PACKAGE libtavlozelkon-dev)

set(CPACK_PACKAGE_NAME zelkon)
set(CPACK_PACKAGE_VENDOR "Tavlo")
set(CPACK_PACKAGE_CONTACT "Tavlo Zelkon maintainers <zelkon@tavlo.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://tavlo.example/zelkon")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
# The package lands where the build was configured to install, so that the library
# directory and the absence of an RPATH match it.
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL application runtime development)
set(CPACK_COMPONENT_APPLICATION_DEPENDS runtime)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${CPACK_PACKAGE_CONTACT})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Our own libraries are not installed while the packages are built: dpkg-shlibdeps finds
# them in the build tree, and the exact-version dependency on the runtime package comes
# from the component dependencies above.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/host ${PROJECT_BINARY_DIR}/tavlozelkon)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# Only the runtime package has libraries to describe.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_APPLICATION_PACKAGE_NAME ${ZELKON_DEB_APPLICATION_PACKAGE})
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_APPLICATION_DESCRIPTION "configuration wizard for Tavlo thin clients
Zelkon walks an administrator through six pages to set the time zone,
keyboard and locale, management agents, automatic updates and remote
assistance, display, power, wireless, sound and USB options, and
connections to host systems (RDP, ICA, terminal emulator, web browser and
others). The configuration is saved as a .tavlocfg file, shown as a
summary and applied on the thin client.
.
This package contains the zelkon wizard, the zelkonctl command-line tool,
example configurations and an example device tree.")
# Qt's own catalogues translate the standard dialog buttons beside the wizard's texts.
set(CPACK_DEBIAN_APPLICATION_PACKAGE_RECOMMENDS qttranslations5-l10n)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${ZELKON_DEB_RUNTIME_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# The icons are SVG, drawn by Qt's SVG plugins, which no ELF dependency reveals.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS libqt5svg5)
# The dynamic linker's cache is refreshed by the trigger (CPack also adds an ldconfig call).
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/dist/linux/deb-runtime/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Zelkon thin client configuration wizard - shared libraries
The wizard pages of Zelkon as Qt widgets, the widget-free configuration
document and models they build on, and the host framework they run in.
Any Qt 5 application can embed the wizard.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${ZELKON_DEB_DEVELOPMENT_PACKAGE})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev, libqt5xmlpatterns5-dev, libqt5svg5-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Zelkon thin client configuration wizard - development files
Headers and the CMake package configuration for building a host
application against the Zelkon libraries: find_package(Zelkon) and link
Zelkon::tavlozelkon_lib.")

include(CPack)
