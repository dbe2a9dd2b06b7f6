# Packs a bundle as Name-1.2.tar.zst. The same bundle always gives the same bytes.
# Usage: cmake -DSETTINGS=FILE -DDESTINATION=FOLDER -P PackBundle.cmake
# The bundle is in FOLDER, and the archive is written there.

include("${CMAKE_CURRENT_LIST_DIR}/Settings.cmake")

pelnar_check_layout("${bundle}")
set(time "$ENV{SOURCE_DATE_EPOCH}")
if(NOT time MATCHES "^[0-9]+$")
    set(time 315532800) # the first moment that every kind of archive can name: 1980-01-01
endif()

set(archive "${DESTINATION}/${BUNDLE_NAME}-${BUNDLE_VERSION}.tar.zst")
execute_process(
    COMMAND tar --create --format=posix "--pax-option=exthdr.name=%d/PaxHeaders/%f,delete=atime,delete=ctime"
        --sort=name "--mtime=@${time}" --owner=0 --group=0 --numeric-owner --mode=u=rwX,go=rX
        --directory "${DESTINATION}" "${BUNDLE_NAME}.app"
    COMMAND zstd --quiet --force "-${BUNDLE_COMPRESSION}" -T0 -o "${archive}"
    RESULTS_VARIABLE results)
if(NOT results STREQUAL "0;0")
    file(REMOVE "${archive}")
    pelnar_bundle_fail("tar or zstd could not pack it. See what they say above; both must be installed.")
endif()
