# The icon and shader bundle, compiled into the executable.
#
# icons/ and shaders/ hold the sources. BuildBundle.cmake makes the dark forms of the icons and
# lists everything in a .qrc; rcc turns that into the one source of the library, whose static
# initialiser (and qInitResources_Quorrel) registers the bundle.
set(resource_dir ${CMAKE_CURRENT_LIST_DIR})
set(bundle_dir ${CMAKE_CURRENT_BINARY_DIR}/resources)

file(GLOB_RECURSE resource_files CONFIGURE_DEPENDS ${resource_dir}/icons/*.svg ${resource_dir}/shaders/*.txt)

add_custom_command(
    OUTPUT ${bundle_dir}/Quorrel.qrc
    COMMAND ${CMAKE_COMMAND} -DRESOURCE_DIR=${resource_dir} -DBUNDLE_DIR=${bundle_dir} -P
            ${resource_dir}/BuildBundle.cmake
    DEPENDS ${resource_files} ${resource_dir}/BuildBundle.cmake
    COMMENT "Making the dark icons and the resource list"
    VERBATIM)
add_custom_command(
    OUTPUT ${bundle_dir}/qrc_Quorrel.cpp
    COMMAND Qt6::rcc --name Quorrel --compress-algo zlib --output ${bundle_dir}/qrc_Quorrel.cpp
            ${bundle_dir}/Quorrel.qrc
    DEPENDS ${bundle_dir}/Quorrel.qrc ${resource_files}
    COMMENT "Compiling the resource bundle"
    VERBATIM)

quorrel_module(quorrel_resources SOURCES ${resource_dir}/Resources.h ${bundle_dir}/qrc_Quorrel.cpp LINK Qt6::Core)
set_target_properties(quorrel_resources PROPERTIES AUTOMOC OFF)
