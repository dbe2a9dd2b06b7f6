# The installed files: the shared libraries and the helper, the headers of the update checker and of the host framework,
# the CMake package with pelnar_add_bundle(), and the pkg-config file.

include(CMakePackageConfigHelpers)

set(PELNAR_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/PelnarUpdateChecker")
set(PELNAR_INSTALL_LICENSES "${CMAKE_INSTALL_DATADIR}/PelnarUpdateChecker/licenses")
set(PELNAR_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/PelnarUpdateChecker")

get_target_property(PELNAR_INSTALLED_TARGETS PelnarUpdateChecker PELNAR_RUNTIME_LIBRARIES)
foreach(library IN LISTS PELNAR_INSTALLED_TARGETS)
    set_target_properties(Pelnar${library} PROPERTIES EXPORT_NAME ${library})
endforeach()
list(TRANSFORM PELNAR_INSTALLED_TARGETS PREPEND Pelnar)
foreach(target IN LISTS PELNAR_INSTALLED_TARGETS)
    target_include_directories(${target} INTERFACE "$<INSTALL_INTERFACE:${PELNAR_INSTALL_INCLUDEDIR}>")
    # The libraries find each other in any folder.
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${PELNAR_BESIDE_LOADER}")
endforeach()

set_target_properties(pelnar_host_interfaces PROPERTIES EXPORT_NAME HostInterfaces)
target_include_directories(pelnar_host_interfaces INTERFACE "$<INSTALL_INTERFACE:${PELNAR_INSTALL_INCLUDEDIR}>")
install(TARGETS pelnar_host_interfaces EXPORT PelnarUpdateCheckerTargets)
install(TARGETS ${PELNAR_INSTALLED_TARGETS} EXPORT PelnarUpdateCheckerTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
if(NOT APPLE)
    set_target_properties(pelnar_update_installer PROPERTIES EXPORT_NAME UpdateInstaller)
    install(TARGETS pelnar_update_installer EXPORT PelnarUpdateCheckerTargets
        RUNTIME DESTINATION "${CMAKE_INSTALL_LIBEXECDIR}/pelnar" COMPONENT runtime)
endif()
install(EXPORT PelnarUpdateCheckerTargets NAMESPACE Pelnar:: DESTINATION "${PELNAR_INSTALL_CMAKEDIR}"
    COMPONENT development)

# Private headers (_p.h) and headers for the project only are not installed.
install(DIRECTORY App common HostFramework DESTINATION "${PELNAR_INSTALL_INCLUDEDIR}" COMPONENT development
    FILES_MATCHING
    PATTERN "*.h"
    PATTERN "*_p.h" EXCLUDE
    PATTERN "PelnarSparkle*" EXCLUDE
    PATTERN "Choice" EXCLUDE
    PATTERN "SessionLibrary" EXCLUDE
    PATTERN "RunningBox.h" EXCLUDE
    PATTERN "SessionDialogs.h" EXCLUDE
    PATTERN "RelaunchLimits.h" EXCLUDE
    PATTERN "UpdateFiles.h" EXCLUDE
    PATTERN "LogReadiness.h" EXCLUDE
    PATTERN "LogSite.h" EXCLUDE)

install(DIRECTORY Engine/include/Pelnar DESTINATION "${PELNAR_INSTALL_INCLUDEDIR}" COMPONENT development
    PATTERN "*_p.h" EXCLUDE)

configure_package_config_file(cmake/PelnarUpdateCheckerConfig.cmake.in
    "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfig.cmake"
    INSTALL_DESTINATION "${PELNAR_INSTALL_CMAKEDIR}"
    PATH_VARS PELNAR_INSTALL_LICENSES PELNAR_INSTALL_INCLUDEDIR)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfig.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfigVersion.cmake"
    cmake/PelnarBundle.cmake
    cmake/HostOperations.cpp
    cmake/PelnarHostFramework.cmake
    DESTINATION "${PELNAR_INSTALL_CMAKEDIR}" COMPONENT development)
install(DIRECTORY cmake/bundle DESTINATION "${PELNAR_INSTALL_CMAKEDIR}" COMPONENT development)
install(DIRECTORY "${PELNAR_LICENSES}/" DESTINATION "${PELNAR_INSTALL_LICENSES}" COMPONENT development)

# Hosts link these. The update checker loads the others.
set(PELNAR_PC_LIBRARIES "-lPelnarUpdateChecker -lPelnarHostFramework")
configure_file(cmake/PelnarUpdateChecker.pc.in "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateChecker.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateChecker.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT development)
