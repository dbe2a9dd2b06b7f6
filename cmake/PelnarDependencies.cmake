# All external dependencies of the project. scripts/packages lists the Debian packages that provide them.

# pelnar_helper_library(<name> <shared> <static>...): a library that both the installer's helper and other programs
# need. A program with the property PELNAR_STANDS_ALONE gets the static libraries, all others the shared one.
function(pelnar_helper_library name shared)
    add_library(${name} INTERFACE)
    if(NOT PELNAR_STANDALONE_HELPER)
        target_link_libraries(${name} INTERFACE ${shared})
        return()
    endif()
    set(files)
    foreach(library IN LISTS ARGN)
        find_library(PELNAR_STATIC_${library} lib${library}.a)
        if(NOT PELNAR_STATIC_${library})
            message(FATAL_ERROR "lib${library}.a is not here, which the installer's helper is linked to. Run "
                "scripts/packages, or configure with -DPELNAR_STANDALONE_HELPER=OFF for a helper that needs the shared "
                "libraries of this system.")
        endif()
        list(APPEND files "${PELNAR_STATIC_${library}}")
    endforeach()
    set(stands_alone "$<BOOL:$<TARGET_PROPERTY:PELNAR_STANDS_ALONE>>")
    target_link_libraries(${name} INTERFACE "$<IF:${stands_alone},${files},${shared}>")
endfunction()

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Widgets Network)
find_package(glog REQUIRED)
find_package(Boost REQUIRED)
find_package(Threads REQUIRED)

# pelnar_objc_runtime: Foundation and the Objective-C runtime.
# pelnar_sparkle_interface: the include folder of <Sparkle/Sparkle.h>. It links nothing, so that a test may use doubles
# of the framework's classes.
add_library(pelnar_objc_runtime INTERFACE)
add_library(pelnar_sparkle_interface INTERFACE)

if(APPLE)
    find_library(PELNAR_FOUNDATION Foundation REQUIRED)
    find_library(PELNAR_APPKIT AppKit REQUIRED)
    # CMAKE_FRAMEWORK_PATH names the folder of a framework that is not installed for all users.
    find_library(PELNAR_SPARKLE Sparkle REQUIRED)
    cmake_path(GET PELNAR_SPARKLE PARENT_PATH PELNAR_SPARKLE_FOLDER)

    if(PELNAR_UNIVERSAL)
        set(CMAKE_OSX_ARCHITECTURES arm64 x86_64)
        foreach(library IN ITEMS Qt5::Core glog::glog)
            get_target_property(file ${library} LOCATION)
            execute_process(COMMAND lipo -archs "${file}"
                OUTPUT_VARIABLE architectures OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
            string(REPLACE " " "|" architectures "${architectures}")
            list(FILTER CMAKE_OSX_ARCHITECTURES INCLUDE REGEX "^(${architectures})$")
        endforeach()
    endif()

    # The code counts references by hand; see Foundation/ManualReferences.h.
    target_compile_options(pelnar_objc_runtime INTERFACE "$<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc>")
    target_link_libraries(pelnar_objc_runtime INTERFACE ${PELNAR_FOUNDATION})
    target_compile_options(pelnar_sparkle_interface INTERFACE
        "$<$<COMPILE_LANGUAGE:OBJCXX>:SHELL:-iframework ${PELNAR_SPARKLE_FOLDER}>")
else()
    find_package(PkgConfig REQUIRED)
    find_package(Qt5LinguistTools 5.15 REQUIRED)

    # GNUstep's Foundation with GCC's Objective-C runtime, compiled by clang. GCC is asked for the place of the
    # runtime's headers and library, because they belong to GCC.
    execute_process(COMMAND gcc -print-file-name=include
        OUTPUT_VARIABLE PELNAR_GCC_INCLUDE OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND gcc -print-file-name=libobjc.so
        OUTPUT_VARIABLE PELNAR_LIBOBJC OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    find_library(PELNAR_GNUSTEP_BASE gnustep-base REQUIRED)

    pkg_check_modules(sodium REQUIRED IMPORTED_TARGET libsodium>=1.0.18)
    pkg_check_modules(zlib REQUIRED IMPORTED_TARGET zlib)
    pkg_check_modules(nettle REQUIRED IMPORTED_TARGET nettle>=3.4)
    pkg_check_modules(libarchive REQUIRED IMPORTED_TARGET libarchive>=3.6)
    pkg_check_modules(zstd REQUIRED IMPORTED_TARGET libzstd)
    pkg_check_modules(lzma REQUIRED IMPORTED_TARGET liblzma)
    pkg_check_modules(md4c REQUIRED IMPORTED_TARGET md4c>=0.4.8)
    find_package(tl-expected 1.0 REQUIRED)
    find_package(CURL 7.87 REQUIRED)
    find_package(OpenSSL 3.0 REQUIRED)
    find_library(PELNAR_UNISTRING unistring REQUIRED) # it has no pkg-config file
    pelnar_helper_library(pelnar_sodium PkgConfig::sodium sodium)
    pelnar_helper_library(pelnar_zlib PkgConfig::zlib z)
    pelnar_helper_library(pelnar_nettle PkgConfig::nettle nettle)
    pelnar_helper_library(pelnar_archive PkgConfig::libarchive archive nettle lzma lz4 bz2 z zstd)
    pelnar_helper_library(pelnar_zstd PkgConfig::zstd zstd)
    pelnar_helper_library(pelnar_lzma PkgConfig::lzma lzma)
    pelnar_helper_library(pelnar_unistring ${PELNAR_UNISTRING} unistring)

    target_compile_options(pelnar_objc_runtime INTERFACE
        "$<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gcc;-fexceptions;-fobjc-exceptions;-fconstant-string-class=NSConstantString>"
        "$<$<COMPILE_LANGUAGE:OBJCXX>:SHELL:-idirafter ${PELNAR_GCC_INCLUDE}>"
        "$<$<COMPILE_LANGUAGE:OBJCXX>:SHELL:-isystem /usr/include/GNUstep>")
    target_compile_definitions(pelnar_objc_runtime INTERFACE
        "$<$<COMPILE_LANGUAGE:OBJCXX>:GNUSTEP;GNUSTEP_BASE_LIBRARY=1;GNU_RUNTIME=1;_NATIVE_OBJC_EXCEPTIONS>")
    target_link_libraries(pelnar_objc_runtime INTERFACE ${PELNAR_GNUSTEP_BASE} ${PELNAR_LIBOBJC})
    target_include_directories(pelnar_sparkle_interface INTERFACE "${PROJECT_SOURCE_DIR}/Engine/include")
endif()

if(PELNAR_BUILD_TESTS)
    find_package(GTest REQUIRED)
endif()
if(PELNAR_BUILD_BENCHMARKS)
    find_package(benchmark REQUIRED)
endif()
