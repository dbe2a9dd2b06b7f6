add_library(benchmark::benchmark SHARED IMPORTED)
set_target_properties(benchmark::benchmark PROPERTIES
    IMPORTED_LOCATION "${CMAKE_OSX_SYSROOT}/usr/lib/benchmark.tbd"
    INTERFACE_INCLUDE_DIRECTORIES "${CMAKE_OSX_SYSROOT}/usr/local/include")
