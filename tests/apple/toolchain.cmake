# The compiler and the linker of this machine, aimed at macOS. PELNAR_APPLE_ARCHITECTURE is x86_64 or arm64,
# PELNAR_APPLE_SYSROOT the folder that sysroot.py has filled, PELNAR_APPLE_TOOLS where clang and ld64.lld are.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR "${PELNAR_APPLE_ARCHITECTURE}")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES
    PELNAR_APPLE_ARCHITECTURE PELNAR_APPLE_SYSROOT PELNAR_APPLE_TOOLS)

set(CMAKE_OSX_SYSROOT "${PELNAR_APPLE_SYSROOT}" CACHE PATH "")
set(CMAKE_OSX_ARCHITECTURES "${PELNAR_APPLE_ARCHITECTURE}" CACHE STRING "")
# Darwin's own version, by which CMake knows what the linker can do.
if(PELNAR_APPLE_ARCHITECTURE STREQUAL "arm64")
    set(CMAKE_SYSTEM_VERSION 20.0)
    set(CMAKE_OSX_DEPLOYMENT_TARGET 11.0 CACHE STRING "")
else()
    set(CMAKE_SYSTEM_VERSION 17.0)
    set(CMAKE_OSX_DEPLOYMENT_TARGET 10.13 CACHE STRING "")
endif()

foreach(language IN ITEMS C CXX OBJCXX)
    set(CMAKE_${language}_COMPILER "${PELNAR_APPLE_TOOLS}/clang++")
    set(CMAKE_${language}_COMPILER_TARGET "${PELNAR_APPLE_ARCHITECTURE}-apple-darwin")
endforeach()
set(CMAKE_CXX_FLAGS_INIT "-stdlib=libc++")
set(CMAKE_OBJCXX_FLAGS_INIT "-stdlib=libc++")
foreach(kind IN ITEMS EXE SHARED MODULE)
    # The number is that of a linker that takes the system's version on its command line, as this one does.
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "--ld-path=${PELNAR_APPLE_TOOLS}/ld64.lld -mlinker-version=609 -Wl,--error-limit=0")
endforeach()
# CMake asks the running system, which is no Mac, whether its linker knows @rpath.
set(CMAKE_USER_MAKE_RULES_OVERRIDE "${CMAKE_CURRENT_LIST_DIR}/linker.cmake")
foreach(tool IN ITEMS AR NM OBJDUMP RANLIB)
    string(TOLOWER "${tool}" name)
    set(CMAKE_${tool} "${PELNAR_APPLE_TOOLS}/llvm-${name}" CACHE FILEPATH "")
endforeach()
set(CMAKE_INSTALL_NAME_TOOL "${PELNAR_APPLE_TOOLS}/llvm-install-name-tool" CACHE FILEPATH "")

# Nothing of this machine's own system is ever found by chance.
set(CMAKE_FIND_USE_CMAKE_SYSTEM_PATH OFF)
set(CMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH ON)
set(CMAKE_FIND_USE_PACKAGE_REGISTRY OFF)
# The update framework stands where no compiler looks by itself: the project has to say where.
set(CMAKE_FRAMEWORK_PATH "${PELNAR_APPLE_SYSROOT}/System/Library/Frameworks" "${PELNAR_APPLE_SYSROOT}/framework")
foreach(package IN ITEMS Boost GTest Qt5 benchmark glog)
    set(${package}_DIR "${CMAKE_CURRENT_LIST_DIR}/packages" CACHE PATH "")
endforeach()
