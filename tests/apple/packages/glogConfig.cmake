add_library(glog::glog SHARED IMPORTED)
set_target_properties(glog::glog PROPERTIES
    IMPORTED_LOCATION "${CMAKE_OSX_SYSROOT}/usr/lib/glog.tbd"
    INTERFACE_INCLUDE_DIRECTORIES "${CMAKE_OSX_SYSROOT}/usr/local/include")
