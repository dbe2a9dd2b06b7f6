# pelnar_target(<name>): the compiler options of every target of this project.
function(pelnar_target name)
    target_include_directories(${name} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>")
    target_compile_definitions(${name} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
        QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    target_compile_options(${name} PRIVATE -Wall -Wextra -Wshadow)
    if(PELNAR_WARNINGS_AS_ERRORS)
        target_compile_options(${name} PRIVATE -Werror)
    endif()
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()

# pelnar_precompile_own(<name> <header>...): precompiles these headers for the C++ sources of the target, and of the
# targets that share with it, in the presets that allow it. Each source still includes every header that it needs: other
# presets compile it without precompiled headers.
function(pelnar_precompile_own name)
    list(TRANSFORM ARGN REPLACE ".+" "$<$<COMPILE_LANGUAGE:CXX>:<\\0$<ANGLE-R>>")
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

# pelnar_precompile_with(<name> <owner>): the target uses the precompiled headers of <owner>.
function(pelnar_precompile_with name owner)
    get_target_property(objective_sources ${name} SOURCES)
    list(FILTER objective_sources INCLUDE REGEX "\\.mm$")
    set_source_files_properties(${objective_sources} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    target_precompile_headers(${name} REUSE_FROM ${owner})
endfunction()

# pelnar_uncounted(<name>): turns coverage off for a program, or for a library in a program, that is confined or starts
# without an environment. Such a program cannot write the counters, and could hang.
function(pelnar_uncounted name)
    if(PELNAR_COVERAGE)
        target_compile_options(${name} PRIVATE -fno-profile-instr-generate -fno-coverage-mapping)
        target_link_options(${name} PRIVATE -noprofilelib)
    endif()
endfunction()

# pelnar_exports(<name>): the shared library exports only the names in <name>.map in the same folder, with the versions
# given there. macOS has no such versions.
function(pelnar_exports name)
    if(NOT APPLE)
        set(map "${CMAKE_CURRENT_SOURCE_DIR}/${name}.map")
        target_link_options(${name} PRIVATE "LINKER:--version-script=${map}")
        set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS "${map}")
    endif()
endfunction()

# pelnar_describe_types(<name>...): gives these targets complete debugging information for every type that they name,
# including interfaces that others implement. The kept description of the binary interface is made from it.
function(pelnar_describe_types)
    if(CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT PELNAR_SANITIZE AND NOT PELNAR_COVERAGE)
        foreach(name IN LISTS ARGN)
            target_compile_options(${name} PRIVATE -fstandalone-debug)
        endforeach()
    endif()
endfunction()
