# What `cmake --install` puts where: three shared libraries, the headers of the update checker and of the host
# framework, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)

set(PELNAR_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/PelnarUpdateChecker")
set(PELNAR_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/PelnarUpdateChecker")

set(PELNAR_INSTALLED_TARGETS PelnarUpdateChecker PelnarHostFramework)
set_target_properties(PelnarUpdateChecker PROPERTIES EXPORT_NAME UpdateChecker)
set_target_properties(PelnarHostFramework PROPERTIES EXPORT_NAME HostFramework)
if(NOT APPLE)
    list(APPEND PELNAR_INSTALLED_TARGETS PelnarUpdateEngine)
    set_target_properties(PelnarUpdateEngine PROPERTIES EXPORT_NAME UpdateEngine)
endif()
foreach(target IN LISTS PELNAR_INSTALLED_TARGETS)
    target_include_directories(${target} INTERFACE "$<INSTALL_INTERFACE:${PELNAR_INSTALL_INCLUDEDIR}>")
    # The libraries find each other wherever the whole is put.
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${PELNAR_BESIDE_LOADER}")
endforeach()

install(TARGETS ${PELNAR_INSTALLED_TARGETS} EXPORT PelnarUpdateCheckerTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT PelnarUpdateCheckerTargets NAMESPACE Pelnar:: DESTINATION "${PELNAR_INSTALL_CMAKEDIR}")

# Private headers (_p.h), and those of the log, stay here.
install(DIRECTORY App common HostFramework DESTINATION "${PELNAR_INSTALL_INCLUDEDIR}"
    FILES_MATCHING
    PATTERN "*.h"
    PATTERN "*_p.h" EXCLUDE
    PATTERN "PelnarSparkle*" EXCLUDE
    PATTERN "LogSite.h" EXCLUDE)

install(DIRECTORY Engine/include/Pelnar DESTINATION "${PELNAR_INSTALL_INCLUDEDIR}")

configure_package_config_file(cmake/PelnarUpdateCheckerConfig.cmake.in
    "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfig.cmake"
    INSTALL_DESTINATION "${PELNAR_INSTALL_CMAKEDIR}")
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfig.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateCheckerConfigVersion.cmake"
    DESTINATION "${PELNAR_INSTALL_CMAKEDIR}")

list(TRANSFORM PELNAR_INSTALLED_TARGETS PREPEND "-l" OUTPUT_VARIABLE PELNAR_PC_LIBRARIES)
list(JOIN PELNAR_PC_LIBRARIES " " PELNAR_PC_LIBRARIES)
configure_file(cmake/PelnarUpdateChecker.pc.in "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateChecker.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/PelnarUpdateChecker.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
