# The information file of a bundle and its desktop entry.

# The boolean keys that OPTIONS may name. A test compares them with the keys that the engine reads.
set(PELNAR_BUNDLE_OPTION_NAMES PelnarAllowsFeedURLInDefaults PelnarAllowsInsecureFeeds PelnarAllowsInstallerPrograms
    PelnarConfirmsGoodStart PelnarRequiresSignedFeed PelnarUpdatesDisabled SUAutomaticallyUpdate)

function(pelnar_check_names)
    if(NOT BUNDLE_NAME MATCHES "^[^-./;\n][^/;\n]*$")
        pelnar_bundle_fail("this name cannot be a bundle's. Choose a NAME without a slash, a semicolon or a line break "
            "that starts with neither a dot nor a dash.")
    endif()
    if(NOT BUNDLE_IDENTIFIER MATCHES "^[A-Za-z0-9-]+([.][A-Za-z0-9-]+)+$")
        pelnar_bundle_fail("\"${BUNDLE_IDENTIFIER}\" is no identifier. Set IDENTIFIER to one such as com.example.notes.")
    endif()
    if(NOT BUNDLE_VERSION MATCHES "^[0-9]+([.][0-9]+)?([.][0-9]+)?([.][0-9]+)?$")
        pelnar_bundle_fail("\"${BUNDLE_VERSION}\" is no version. Set VERSION to one to four numbers with dots between them.")
    endif()
    if(NOT BUNDLE_QT MATCHES "^(OUTSIDE|INSIDE)$")
        pelnar_bundle_fail("Qt can be outside or inside. Set QT to OUTSIDE or INSIDE, not to \"${BUNDLE_QT}\".")
    endif()
    if(NOT BUNDLE_SYSTEM_LIBRARIES MATCHES "^(INSIDE|OUTSIDE)$")
        pelnar_bundle_fail("the libraries of the system can be inside or outside. Set SYSTEM_LIBRARIES to INSIDE or OUTSIDE, not to "
            "\"${BUNDLE_SYSTEM_LIBRARIES}\".")
    endif()
    foreach(option IN LISTS BUNDLE_OPTIONS)
        if(NOT option IN_LIST PELNAR_BUNDLE_OPTION_NAMES)
            list(JOIN PELNAR_BUNDLE_OPTION_NAMES ", " known)
            pelnar_bundle_fail("there is no option \"${option}\". The options are ${known}.")
        endif()
    endforeach()
endfunction()

function(pelnar_property_list_text value result)
    string(REPLACE "\\" "\\\\" value "${value}")
    string(REPLACE "\"" "\\\"" value "${value}")
    set(${result} "\"${value}\"" PARENT_SCOPE)
endfunction()

# The key from the argument <name> or <name>_FILE: a file with the output of `pelnar-appcast keys show`, or the entry
# that `keys generate` prints. Empty if neither argument is given.
function(pelnar_read_public_key name result)
    set(key "${BUNDLE_${name}}")
    if(key STREQUAL "" AND NOT "${BUNDLE_${name}_FILE}" STREQUAL "")
        file(READ "${BUNDLE_${name}_FILE}" key)
        set(key "${key} ") # an empty file names a key, and a wrong one
    endif()
    if(NOT key STREQUAL "")
        string(REGEX MATCH "[A-Za-z0-9+/]+=" text "${key}")
        string(LENGTH "${text}" length)
        if(NOT length EQUAL 44)
            pelnar_bundle_fail("\"${key}\" is no public key. Set ${name} to what `pelnar-appcast keys generate` printed.")
        endif()
        set(key "${text}")
    endif()
    set(${result} "${key}" PARENT_SCOPE)
endfunction()

function(pelnar_write_information file)
    pelnar_read_public_key(PUBLIC_KEY key)
    pelnar_read_public_key(NEXT_PUBLIC_KEY BUNDLE_NEXT_KEY)
    pelnar_read_public_key(ROOT_PUBLIC_KEY BUNDLE_ROOT_KEY)
    if(key STREQUAL "")
        pelnar_bundle_fail("it trusts no key, so it could install no update. Make a key with `pelnar-appcast keys generate` and "
            "set PUBLIC_KEY to what it prints.")
    endif()
    if(key STREQUAL BUNDLE_ROOT_KEY OR (key STREQUAL BUNDLE_NEXT_KEY) OR
            (BUNDLE_ROOT_KEY AND BUNDLE_ROOT_KEY STREQUAL BUNDLE_NEXT_KEY))
        pelnar_bundle_fail("two of its keys are one. Make a key for each of PUBLIC_KEY, NEXT_PUBLIC_KEY and ROOT_PUBLIC_KEY.")
    endif()
    set(entries
        "CFBundleIdentifier=${BUNDLE_IDENTIFIER}"
        "CFBundleName=${BUNDLE_DISPLAY_NAME}"
        "CFBundleVersion=${BUNDLE_VERSION}"
        "NSExecutable=${BUNDLE_NAME}"
        "SUBundleName=${BUNDLE_DISPLAY_NAME}"
        "SUPublicEDKey=${key}")
    foreach(pair IN ITEMS CFBundleShortVersionString=DISPLAY_VERSION SUFeedURL=FEED_URL
            PelnarNextPublicEDKey=NEXT_KEY PelnarRootPublicEDKey=ROOT_KEY)
        string(REGEX MATCH "^(.+)=(.+)$" pair "${pair}")
        set(name "${CMAKE_MATCH_1}")
        if(NOT BUNDLE_${CMAKE_MATCH_2} STREQUAL "")
            list(APPEND entries "${name}=${BUNDLE_${CMAKE_MATCH_2}}")
        endif()
    endforeach()
    if(NOT BUNDLE_ICON STREQUAL "")
        cmake_path(GET BUNDLE_ICON EXTENSION LAST_ONLY ending)
        list(APPEND entries "NSIcon=${BUNDLE_IDENTIFIER}${ending}")
    endif()
    foreach(option IN LISTS BUNDLE_OPTIONS)
        list(APPEND entries "${option}=YES")
    endforeach()
    set(text "{\n")
    foreach(entry IN LISTS entries BUNDLE_INFORMATION)
        if(NOT entry MATCHES "^([A-Za-z0-9]+)=(.*)$")
            pelnar_bundle_fail("\"${entry}\" is no entry of the information file. Write INFORMATION \"Key=text\".")
        endif()
        set(name "${CMAKE_MATCH_1}")
        pelnar_property_list_text("${CMAKE_MATCH_2}" value)
        string(APPEND text "    ${name} = ${value};\n")
    endforeach()
    file(WRITE "${file}" "${text}}\n")
endfunction()

# The desktop entry starts the application by the name of its link. A person or a package puts this link into a folder
# of PATH.
function(pelnar_write_desktop_entry file)
    if(NOT BUNDLE_DESKTOP_ENTRY STREQUAL "")
        file(COPY_FILE "${BUNDLE_DESKTOP_ENTRY}" "${file}")
        return()
    endif()
    if(NOT BUNDLE_LINK MATCHES "^[A-Za-z0-9._+-]+$")
        pelnar_bundle_fail("\"${BUNDLE_LINK}\" cannot be the name of a command. Set LINK to a name of letters and digits.")
    endif()
    string(REPLACE "\\" "\\\\" name "${BUNDLE_DISPLAY_NAME}")
    set(text "[Desktop Entry]\nType=Application\nName=${name}\nExec=${BUNDLE_LINK} %F\nTerminal=false\n")
    if(NOT BUNDLE_ICON STREQUAL "")
        string(APPEND text "Icon=${BUNDLE_IDENTIFIER}\n")
    endif()
    if(NOT BUNDLE_CATEGORIES STREQUAL "")
        string(APPEND text "Categories=${BUNDLE_CATEGORIES};\n")
    endif()
    file(WRITE "${file}" "${text}")
endfunction()
