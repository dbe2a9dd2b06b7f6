# The common part of a bundle's scripts: the settings, and the error messages. To change a setting, set it before the
# script runs: `cmake -DBUNDLE_VERSION=1.3 -DSETTINGS=... -P MakeBundle.cmake`.

cmake_policy(VERSION 3.25)

function(pelnar_bundle_setting name)
    if(NOT DEFINED ${name})
        set(${name} "${ARGN}" PARENT_SCOPE)
    endif()
endfunction()

function(pelnar_bundle_fail)
    # Not as a list: a list would lose the semicolons of a text.
    set(text)
    math(EXPR last "${ARGC} - 1")
    foreach(place RANGE ${last})
        string(APPEND text "${ARGV${place}}")
    endforeach()
    message(FATAL_ERROR "${BUNDLE_NAME}.app: ${text}")
endfunction()

# The first bytes of a file, in hexadecimal digits.
function(pelnar_is_elf file result)
    set(${result} NO PARENT_SCOPE)
    if(NOT IS_DIRECTORY "${file}" AND NOT IS_SYMLINK "${file}")
        file(READ "${file}" head LIMIT 4 HEX)
        if(head STREQUAL 7f454c46)
            set(${result} YES PARENT_SCOPE)
        endif()
    endif()
endfunction()

# A bundle with the layout of macOS and a program for Linux is not usable.
function(pelnar_check_layout bundle)
    if(NOT IS_DIRECTORY "${bundle}/Contents")
        return()
    endif()
    file(GLOB_RECURSE files "${bundle}/*")
    foreach(file IN LISTS files)
        pelnar_is_elf("${file}" is_elf)
        if(is_elf)
            pelnar_bundle_fail("it has the layout of macOS (Contents/), but \"${file}\" is a file for Linux. "
                "Make the bundle with pelnar_add_bundle() on the system that it is for.")
        endif()
    endforeach()
endfunction()

include("${SETTINGS}")

set(bundle "${DESTINATION}/${BUNDLE_NAME}.app")
