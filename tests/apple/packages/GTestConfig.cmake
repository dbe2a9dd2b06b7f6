# Compiled from the sources that Debian has: the tests link against the real thing.
file(READ "${CMAKE_OSX_SYSROOT}/gtest-folder.txt" folder)
add_library(pelnar_apple_gtest STATIC EXCLUDE_FROM_ALL "${folder}/src/gtest-all.cc")
target_include_directories(pelnar_apple_gtest SYSTEM
    PUBLIC "${CMAKE_OSX_SYSROOT}/usr/local/include"
    PRIVATE "${folder}")
target_compile_options(pelnar_apple_gtest PRIVATE -w)
add_library(GTest::gtest ALIAS pelnar_apple_gtest)
