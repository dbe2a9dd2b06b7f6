# Debian packages of what is installed: `cpack -G DEB` in a build folder. The libraries with the helper, what programs are built
# with, and the publisher's tool; a package names what it needs as dpkg-shlibdeps finds it.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pelnar-update-checker)
set(CPACK_PACKAGE_VENDOR Pelnar)
set(CPACK_PACKAGE_CONTACT "Pelnar <update-checker@pelnar.example>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_COMPONENTS_ALL runtime development publisher)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(PELNAR_LIBRARY_PACKAGE "libpelnar-update-checker${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${PELNAR_LIBRARY_PACKAGE}")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "${PROJECT_DESCRIPTION}: what programs load")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libpelnar-update-checker-dev)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "${PROJECT_DESCRIPTION}: what programs are built with")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${PELNAR_LIBRARY_PACKAGE} (= ${PROJECT_VERSION}), qtbase5-dev, zstd, binutils")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS qttranslations5-l10n) # for bundles with Qt inside
set(CPACK_DEBIAN_PUBLISHER_PACKAGE_NAME pelnar-appcast)
set(CPACK_DEBIAN_PUBLISHER_DESCRIPTION "${PROJECT_DESCRIPTION}: what their publishers use")
set(CPACK_DEBIAN_PUBLISHER_PACKAGE_SECTION utils)

# Our own libraries belong to no package of this system yet.
foreach(target IN LISTS PELNAR_INSTALLED_TARGETS)
    get_target_property(folder ${target} BINARY_DIR)
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${folder}")
endforeach()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} variable)
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" RENAME copyright COMPONENT ${component}
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${variable}_PACKAGE_NAME}")
endforeach()

include(CPack)
