# The options that a person may set, and the folders of the build's output.

option(PELNAR_BUILD_TESTS "Build the tests" ON)
option(PELNAR_BUILD_BENCHMARKS "Build the benchmarks (they run on request only)" ON)
option(PELNAR_BUILD_FUZZERS "Build the fuzz targets with libFuzzer" OFF)
option(PELNAR_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(PELNAR_COVERAGE "Instrument for source-based line and branch coverage" OFF)
option(PELNAR_STANDALONE_HELPER "Link the installer's helper to static libraries: it needs the C library alone" ON)
option(PELNAR_UNIVERSAL "macOS: build for every architecture that both Qt and glog have" OFF)
set(PELNAR_SANITIZE "" CACHE STRING "Sanitizers for every target, for example address,undefined")

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_STANDARD 17)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_OBJCXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Libraries search in their own folder, so that the whole can be moved.
if(APPLE)
    set(PELNAR_BESIDE_LOADER "@loader_path")
else()
    set(PELNAR_BESIDE_LOADER "$ORIGIN")
endif()

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR
        "The Objective-C++ sources read Qt's headers, which only clang++ does: configure with "
        "`cmake --preset dev` (or with CXX=clang++ and OBJCXX=clang++ in the environment).")
endif()

find_program(PELNAR_CCACHE ccache)
if(PELNAR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${PELNAR_CCACHE}")
    set(CMAKE_OBJCXX_COMPILER_LAUNCHER "${PELNAR_CCACHE}")
endif()

# Nearly every source is linked into several test programs. This linker needs a seventh of the default linker's time.
find_program(PELNAR_LLD ld.lld)
if(PELNAR_LLD AND NOT APPLE)
    add_link_options(-fuse-ld=lld)
endif()

if(PELNAR_SANITIZE)
    add_compile_options(-fsanitize=${PELNAR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${PELNAR_SANITIZE})
    if(PELNAR_SANITIZE MATCHES "undefined")
        # The type information of a hidden class in another shared library is not unique. So `vptr` and `function` would
        # report correct calls.
        add_compile_options(-fno-sanitize=vptr,function)
        add_link_options(-fno-sanitize=vptr,function)
    endif()
endif()
if(PELNAR_COVERAGE)
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()
if(PELNAR_BUILD_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
