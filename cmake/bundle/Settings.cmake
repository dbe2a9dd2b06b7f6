# What the scripts of a bundle share: its settings, and how they end when something is wrong. To change a
# value, set it before the script runs: `cmake -DBUNDLE_VERSION=1.3 -DSETTINGS=... -P MakeBundle.cmake`.

cmake_policy(VERSION 3.25)

function(pelnar_bundle_setting name)
    if(NOT DEFINED ${name})
        set(${name} "${ARGN}" PARENT_SCOPE)
    endif()
endfunction()

function(pelnar_bundle_fail)
    # Not as a list, from which the semicolons of a text would be missing.
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

# A bundle whose layout is that of macOS, with a program for Linux, is of use to nobody.
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
