add_library(Boost::headers INTERFACE IMPORTED)
set_target_properties(Boost::headers PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "${CMAKE_OSX_SYSROOT}/usr/local/include")
set(Boost_VERSION 1.74.0)
