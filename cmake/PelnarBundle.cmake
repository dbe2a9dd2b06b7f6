# pelnar_add_bundle(<target> ...): makes an application bundle that updates itself of an executable. docs/guide/deployment.md
# tells what is inside and why.
#
#   pelnar_add_bundle(notely
#       NAME "My Notes"                       # My Notes.app/My Notes; without it, the name of the executable's file
#       IDENTIFIER com.example.notes
#       VERSION 1.2                           # without it, the project's
#       PUBLIC_KEY "..."                      # what `pelnar-appcast keys generate` prints; or PUBLIC_KEY_FILE <file>
#       NEXT_PUBLIC_KEY "..."                 # the key that follows it; or NEXT_PUBLIC_KEY_FILE <file>
#       ROOT_PUBLIC_KEY "..."                 # the key that says in the feed which keys count; or ROOT_PUBLIC_KEY_FILE <file>
#       DISPLAY_NAME "My Notes"  DISPLAY_VERSION "1.2 (spring)"  FEED_URL https://...
#       OPTIONS PelnarConfirmsGoodStart ...   # truth values of the information file that are YES
#       INFORMATION "Key=text" ...            # further entries of the information file
#       ICON notes.png  CATEGORIES Office  LINK notely  DESKTOP_ENTRY own.desktop
#       TRANSLATIONS notes_de.qm ...          # into Resources/translations; those of the windows of an update are in the libraries
#       RESOURCES file-or-folder ...          # into Resources
#       LIBRARIES target-or-file ...          # shared libraries and plugins that are opened at run time
#       LICENSES file ...                     # the application's own, and those of libraries that belong to no package
#       QT OUTSIDE | INSIDE                   # INSIDE brings Qt, its platform plugins and its own translations
#       SYSTEM_LIBRARIES INSIDE | OUTSIDE     # OUTSIDE makes a bundle for this very system
#       COMPRESSION 19                        # of the archive, as zstd counts
#       DESTINATION <folder>  COMPONENT <name>)
#
# The target <target>_bundle makes it in <target>_bundle/ of the build folder, <target>_archive packs it there as
# Name-1.2.tar.zst, and `cmake --install --component <name>` (without it, <target>_bundle) installs it. On macOS the same call
# makes the usual bundle with Contents/; what concerns other systems is left out there.

cmake_policy(VERSION 3.25)

set(PELNAR_BUNDLE_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/bundle")

set(PELNAR_BUNDLE_ONE_VALUE NAME IDENTIFIER VERSION DISPLAY_NAME DISPLAY_VERSION PUBLIC_KEY PUBLIC_KEY_FILE
    NEXT_PUBLIC_KEY NEXT_PUBLIC_KEY_FILE ROOT_PUBLIC_KEY ROOT_PUBLIC_KEY_FILE FEED_URL ICON LINK DESKTOP_ENTRY QT SYSTEM_LIBRARIES COMPRESSION DESTINATION COMPONENT)
set(PELNAR_BUNDLE_MANY_VALUES CATEGORIES OPTIONS INFORMATION TRANSLATIONS RESOURCES LIBRARIES LICENSES)

function(pelnar_add_bundle target)
    cmake_parse_arguments(PARSE_ARGV 1 BUNDLE "" "${PELNAR_BUNDLE_ONE_VALUE}" "${PELNAR_BUNDLE_MANY_VALUES}")
    if(BUNDLE_UNPARSED_ARGUMENTS OR BUNDLE_KEYWORDS_MISSING_VALUES)
        message(FATAL_ERROR "pelnar_add_bundle(${target}): not understood: "
            "${BUNDLE_UNPARSED_ARGUMENTS} ${BUNDLE_KEYWORDS_MISSING_VALUES}")
    endif()
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL EXECUTABLE)
        message(FATAL_ERROR "pelnar_add_bundle(${target}): a bundle is made of an executable, but this target is a ${type}.")
    endif()
    get_target_property(program ${target} OUTPUT_NAME)
    if(NOT program)
        set(program ${target})
    endif()
    pelnar_bundle_default(BUNDLE_NAME "${program}")
    pelnar_bundle_default(BUNDLE_VERSION "${PROJECT_VERSION}")
    pelnar_bundle_default(BUNDLE_DISPLAY_NAME "${BUNDLE_NAME}")
    pelnar_bundle_default(BUNDLE_LINK "${program}")
    pelnar_bundle_default(BUNDLE_QT OUTSIDE)
    pelnar_bundle_default(BUNDLE_SYSTEM_LIBRARIES INSIDE)
    pelnar_bundle_default(BUNDLE_COMPRESSION 19)
    pelnar_bundle_default(BUNDLE_DESTINATION ".")
    pelnar_bundle_default(BUNDLE_COMPONENT ${target}_bundle)
    foreach(kind IN ITEMS PUBLIC_KEY_FILE NEXT_PUBLIC_KEY_FILE ROOT_PUBLIC_KEY_FILE ICON DESKTOP_ENTRY TRANSLATIONS RESOURCES LICENSES)
        pelnar_bundle_make_absolute(BUNDLE_${kind})
    endforeach()
    if(APPLE)
        pelnar_add_macos_bundle(${target})
    else()
        pelnar_add_linux_bundle(${target})
    endif()
endfunction()

macro(pelnar_bundle_default name value)
    if("${${name}}" STREQUAL "")
        set(${name} "${value}")
    endif()
endmacro()

function(pelnar_bundle_make_absolute name)
    set(paths)
    foreach(path IN LISTS ${name})
        cmake_path(ABSOLUTE_PATH path BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
        list(APPEND paths "${path}")
    endforeach()
    set(${name} "${paths}" PARENT_SCOPE)
endfunction()

# The usual bundle of macOS. macdeployqt adds Qt and its plugins; codesign signs the bundle after that.
function(pelnar_add_macos_bundle target)
    set_target_properties(${target} PROPERTIES
        MACOSX_BUNDLE ON
        MACOSX_BUNDLE_GUI_IDENTIFIER "${BUNDLE_IDENTIFIER}"
        MACOSX_BUNDLE_BUNDLE_NAME "${BUNDLE_DISPLAY_NAME}"
        MACOSX_BUNDLE_BUNDLE_VERSION "${BUNDLE_VERSION}"
        MACOSX_BUNDLE_SHORT_VERSION_STRING "${BUNDLE_VERSION}"
        INSTALL_RPATH "@loader_path/../Frameworks")
    install(TARGETS ${target}
        BUNDLE DESTINATION "${BUNDLE_DESTINATION}" COMPONENT ${BUNDLE_COMPONENT} EXCLUDE_FROM_ALL)
    set(frameworks "${BUNDLE_DESTINATION}/${program}.app/Contents/Frameworks")
    get_target_property(libraries Pelnar::UpdateChecker PELNAR_RUNTIME_LIBRARIES)
    foreach(library IN LISTS libraries)
        get_target_property(is_installed Pelnar::${library} IMPORTED)
        if(is_installed)
            install(FILES "$<TARGET_FILE:Pelnar::${library}>" RENAME "$<TARGET_SONAME_FILE_NAME:Pelnar::${library}>"
                DESTINATION "${frameworks}" COMPONENT ${BUNDLE_COMPONENT} EXCLUDE_FROM_ALL)
        else()
            get_target_property(built Pelnar::${library} ALIASED_TARGET)
            install(TARGETS ${built}
                LIBRARY DESTINATION "${frameworks}" COMPONENT ${BUNDLE_COMPONENT} NAMELINK_SKIP EXCLUDE_FROM_ALL)
        endif()
    endforeach()
    find_library(PELNAR_SPARKLE Sparkle REQUIRED)
    install(DIRECTORY "${PELNAR_SPARKLE}" DESTINATION "${frameworks}"
        USE_SOURCE_PERMISSIONS COMPONENT ${BUNDLE_COMPONENT} EXCLUDE_FROM_ALL)
endfunction()

# The settings for the bundle's scripts: all that is known when the build is generated.
function(pelnar_write_bundle_settings target file)
    set(library_files)
    get_target_property(project_libraries Pelnar::UpdateChecker PELNAR_RUNTIME_LIBRARIES)
    foreach(library IN LISTS project_libraries)
        list(APPEND library_files "$<TARGET_FILE:Pelnar::${library}>")
    endforeach()
    set(opened_files)
    foreach(library IN LISTS BUNDLE_LIBRARIES)
        if(TARGET ${library})
            list(APPEND opened_files "$<TARGET_FILE:${library}>")
        else()
            pelnar_bundle_make_absolute(library)
            list(APPEND opened_files "${library}")
        endif()
    endforeach()
    set(BUNDLE_PROGRAM "$<TARGET_FILE:${target}>")
    set(BUNDLE_PROJECT_LIBRARIES "${library_files}")
    set(BUNDLE_OPENED_LIBRARIES "${opened_files}")
    set(BUNDLE_HELPER "$<TARGET_FILE:Pelnar::UpdateInstaller>")
    get_target_property(BUNDLE_LIBRARY_FOLDER Pelnar::UpdateChecker PELNAR_LIBRARY_FOLDER)
    get_target_property(BUNDLE_HELPER_FOLDER Pelnar::UpdateChecker PELNAR_HELPER_FOLDER)
    set(BUNDLE_PROJECT_LICENSES "${PELNAR_LICENSES}")
    set(BUNDLE_QT_PLUGINS)
    if(TARGET Qt5::QXcbIntegrationPlugin)
        set(BUNDLE_QT_PLUGINS "$<TARGET_FILE:Qt5::QXcbIntegrationPlugin>")
    endif()
    set(BUNDLE_QT_TRANSLATIONS)
    if(TARGET Qt5::qmake)
        get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
        execute_process(COMMAND "${qmake}" -query QT_INSTALL_TRANSLATIONS
            OUTPUT_VARIABLE BUNDLE_QT_TRANSLATIONS OUTPUT_STRIP_TRAILING_WHITESPACE)
    endif()
    set(BUNDLE_STRIP_PROGRAM "${CMAKE_STRIP}")
    set(BUNDLE_OBJDUMP "${CMAKE_OBJDUMP}")
    set(text "")
    foreach(name IN ITEMS ${PELNAR_BUNDLE_ONE_VALUE} ${PELNAR_BUNDLE_MANY_VALUES} PROGRAM PROJECT_LIBRARIES
            OPENED_LIBRARIES HELPER LIBRARY_FOLDER HELPER_FOLDER PROJECT_LICENSES QT_PLUGINS QT_TRANSLATIONS STRIP_PROGRAM OBJDUMP)
        string(APPEND text "pelnar_bundle_setting(BUNDLE_${name} [===[${BUNDLE_${name}}]===])\n")
    endforeach()
    file(GENERATE OUTPUT "${file}" CONTENT "${text}" TARGET ${target})
endfunction()

# The same sources must give the same bundle in every folder. So the program and its libraries contain no path of this
# build, neither as a search path nor as the name of a source. Debug builds keep the paths for debuggers.
function(pelnar_bundle_forget_folders target libraries)
    get_target_property(project_libraries Pelnar::UpdateChecker PELNAR_RUNTIME_LIBRARIES)
    list(TRANSFORM project_libraries PREPEND Pelnar::)
    set(waiting ${target} ${libraries} ${project_libraries} Pelnar::UpdateInstaller)
    set(seen)
    while(NOT waiting STREQUAL "")
        list(POP_FRONT waiting current)
        if(NOT TARGET "${current}")
            continue()
        endif()
        get_target_property(aliased "${current}" ALIASED_TARGET)
        if(aliased)
            set(current "${aliased}")
        endif()
        get_target_property(is_of_others "${current}" IMPORTED)
        if(is_of_others OR current IN_LIST seen)
            continue()
        endif()
        list(APPEND seen "${current}")
        set(linked INTERFACE_LINK_LIBRARIES)
        get_target_property(type "${current}" TYPE)
        if(NOT type STREQUAL INTERFACE_LIBRARY)
            set(linked LINK_LIBRARIES)
            set_property(TARGET "${current}" PROPERTY BUILD_RPATH_USE_ORIGIN ON)
            foreach(folder IN ITEMS "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}")
                target_compile_options("${current}" PRIVATE
                    "$<$<AND:$<COMPILE_LANGUAGE:C,CXX,OBJC,OBJCXX>,$<NOT:$<CONFIG:Debug>>>:-ffile-prefix-map=${folder}=.>")
            endforeach()
        endif()
        get_target_property(libraries "${current}" ${linked})
        if(libraries)
            list(APPEND waiting ${libraries})
        endif()
    endwhile()
endfunction()

function(pelnar_add_linux_bundle target)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_bundle")
    set(settings "${folder}/settings.cmake")
    get_property(is_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
    if(is_multi_config)
        string(APPEND folder "/$<CONFIG>")
        set(settings "${folder}/settings.cmake")
    endif()
    pelnar_write_bundle_settings(${target} "${settings}")

    # The bundle's third-party libraries have no search path of their own. The program's DT_RPATH finds them, because it
    # applies to all libraries that the program loads; DT_RUNPATH does not.
    get_target_property(library_folder Pelnar::UpdateChecker PELNAR_LIBRARY_FOLDER)
    target_link_options(${target} PRIVATE "LINKER:--disable-new-dtags")
    set_property(TARGET ${target} APPEND PROPERTY BUILD_RPATH "$ORIGIN/${library_folder}")

    # This must come last: only now is it known which libraries the program links.
    cmake_language(EVAL CODE "cmake_language(DEFER DIRECTORY [==[${CMAKE_SOURCE_DIR}]==]
        CALL pelnar_bundle_forget_folders [==[${target}]==] [==[${BUNDLE_LIBRARIES}]==])")

    set(make "${CMAKE_COMMAND}" --log-level=WARNING "-DSETTINGS=${settings}" "-DDESTINATION=${folder}"
        -P "${PELNAR_BUNDLE_SCRIPTS}/MakeBundle.cmake")
    set(pack "${CMAKE_COMMAND}" --log-level=WARNING "-DSETTINGS=${settings}" "-DDESTINATION=${folder}"
        -P "${PELNAR_BUNDLE_SCRIPTS}/PackBundle.cmake")
    # Made in every build: the system's libraries may change without the build's knowledge.
    add_custom_target(${target}_bundle COMMAND ${make} COMMENT "Making ${BUNDLE_NAME}.app" VERBATIM)
    get_target_property(needed Pelnar::UpdateChecker PELNAR_RUNTIME_LIBRARIES)
    list(TRANSFORM needed PREPEND Pelnar::)
    foreach(library IN LISTS BUNDLE_LIBRARIES)
        if(TARGET ${library})
            list(APPEND needed ${library})
        endif()
    endforeach()
    add_dependencies(${target}_bundle ${target} Pelnar::UpdateInstaller ${needed})
    add_custom_target(${target}_archive COMMAND ${pack}
        COMMENT "Packing ${BUNDLE_NAME}-${BUNDLE_VERSION}.tar.zst" VERBATIM)
    add_dependencies(${target}_archive ${target}_bundle)

    cmake_path(ABSOLUTE_PATH BUNDLE_DESTINATION BASE_DIRECTORY "/" NORMALIZE OUTPUT_VARIABLE destination)
    set(installed "\${CMAKE_INSTALL_PREFIX}${destination}")
    if(IS_ABSOLUTE "${BUNDLE_DESTINATION}")
        set(installed "${destination}")
    endif()
    install(CODE "execute_process(COMMAND [==[${CMAKE_COMMAND}]==] [==[-DSETTINGS=${settings}]==]
            \"-DDESTINATION=\$ENV{DESTDIR}${installed}\" -P [==[${PELNAR_BUNDLE_SCRIPTS}/MakeBundle.cmake]==]
            COMMAND_ERROR_IS_FATAL ANY)"
        COMPONENT ${BUNDLE_COMPONENT} EXCLUDE_FROM_ALL)
endfunction()
