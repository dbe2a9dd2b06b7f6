# PELNAR_LICENSES: a folder with the project's licence, and in built-in/ the licences of the code that is compiled or
# statically linked into its files. Bundles and installations copy this folder.

include("${CMAKE_CURRENT_LIST_DIR}/bundle/Licenses.cmake")

set(PELNAR_LICENSES "${PROJECT_BINARY_DIR}/licenses")
file(REMOVE_RECURSE "${PELNAR_LICENSES}")
configure_file("${PROJECT_SOURCE_DIR}/LICENSE" "${PELNAR_LICENSES}/pelnar-update-checker.txt" COPYONLY)
if(NOT APPLE)
    file(MAKE_DIRECTORY "${PELNAR_LICENSES}/built-in")
    execute_process(COMMAND gcc -print-file-name=libstdc++.a
        OUTPUT_VARIABLE built_in OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    file(REAL_PATH "${built_in}" built_in)
    foreach(folder IN LISTS Boost_INCLUDE_DIRS)
        list(APPEND built_in "${folder}/boost/version.hpp")
    endforeach()
    get_cmake_property(variables CACHE_VARIABLES)
    list(FILTER variables INCLUDE REGEX "^PELNAR_STATIC_")
    foreach(variable IN LISTS variables)
        list(APPEND built_in "${${variable}}")
    endforeach()
    pelnar_find_packages(owner ${built_in})
    foreach(file IN LISTS built_in)
        if(DEFINED "owner_${file}")
            string(REGEX REPLACE " .*$" "" package "${owner_${file}}")
            pelnar_copy_package_license("${package}" "${PELNAR_LICENSES}/built-in")
        endif()
    endforeach()
endif()
