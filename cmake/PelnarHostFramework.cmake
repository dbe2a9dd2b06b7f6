# pelnar_host_framework(<target>): prepares a shared library to replace the reference host framework. The target gets
# the headers of the host interfaces, and the meta-objects of those classes that have one.
# docs/guide/own-host-framework.md says what the library must define, and how to link programs with it.

set_property(GLOBAL PROPERTY PELNAR_HOST_OPERATIONS "${CMAKE_CURRENT_LIST_DIR}/HostOperations.cpp")

function(pelnar_host_framework target)
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL SHARED_LIBRARY)
        message(FATAL_ERROR "pelnar_host_framework(${target}): a host framework is a shared library. The update checker "
            "looks for its operations when the program runs, and would find none in a program or a static library.")
    endif()
    # These paths are different in the project and in an installation.
    get_property(headers GLOBAL PROPERTY PELNAR_HOST_HEADERS)
    get_property(operations GLOBAL PROPERTY PELNAR_HOST_OPERATIONS)
    get_property(interfaces GLOBAL PROPERTY PELNAR_HOST_INTERFACES)
    foreach(name IN ITEMS AlertBox Application NagScreenManager)
        set(meta_object "${CMAKE_CURRENT_BINARY_DIR}/${target}_meta_objects/${name}.cpp")
        qt5_generate_moc("${headers}/${name}.h" "${meta_object}" TARGET ${target})
        set_source_files_properties("${meta_object}" PROPERTIES SKIP_AUTOMOC ON)
        target_sources(${target} PRIVATE "${meta_object}")
    endforeach()
    target_sources(${target} PRIVATE "${operations}")
    if(APPLE)
        # On macOS a program searches for an operation in the library with the name that it was linked with.
        set_target_properties(${target} PROPERTIES OUTPUT_NAME PelnarHostFramework VERSION 1 SOVERSION 1)
    endif()
    target_link_libraries(${target} PUBLIC ${interfaces})
endfunction()
