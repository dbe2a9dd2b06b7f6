# Qt's headers as Debian has them, its libraries as stubs, its tools as this machine runs them.
set(Qt5_VERSION 5.15.8)
set(Qt5_FOUND TRUE)
set(Qt5Core_VERSION ${Qt5_VERSION})
set(Qt5Core_VERSION_MAJOR 5)
set(Qt5Core_VERSION_MINOR 15)
file(READ "${CMAKE_OSX_SYSROOT}/qt-folders.txt" folders)
list(GET folders 0 headers)
list(GET folders 1 tools)

function(pelnar_qt_module name)
    add_library(Qt5::${name} SHARED IMPORTED)
    set_target_properties(Qt5::${name} PROPERTIES
        IMPORTED_LOCATION "${CMAKE_OSX_SYSROOT}/usr/lib/Qt${name}.tbd"
        INTERFACE_QT_MAJOR_VERSION 5
        INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${headers};${headers}/Qt${name}"
        INTERFACE_INCLUDE_DIRECTORIES "${headers};${headers}/Qt${name}"
        INTERFACE_COMPILE_DEFINITIONS QT_${name}_LIB
        INTERFACE_LINK_LIBRARIES "${ARGN}")
endfunction()
if(NOT TARGET Qt5::Core)
    pelnar_qt_module(Core)
    pelnar_qt_module(Gui Qt5::Core)
    pelnar_qt_module(Widgets Qt5::Gui Qt5::Core)
    pelnar_qt_module(Network Qt5::Core)
    pelnar_qt_module(Test Qt5::Core)
    foreach(tool IN ITEMS moc rcc)
        add_executable(Qt5::${tool} IMPORTED)
        set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION "${tools}/${tool}")
    endforeach()
endif()
foreach(component IN LISTS Qt5_FIND_COMPONENTS)
    if(TARGET Qt5::${component})
        set(Qt5_${component}_FOUND TRUE)
    elseif(Qt5_FIND_REQUIRED_${component})
        set(Qt5_FOUND FALSE)
        set(Qt5_NOT_FOUND_MESSAGE "The lane has no Qt5::${component}.")
    endif()
endforeach()
