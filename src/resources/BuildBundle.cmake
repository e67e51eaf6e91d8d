# cmake -DRESOURCE_DIR=<src/resources> -DBUNDLE_DIR=<build folder> -P BuildBundle.cmake
#
# Recolours every icon drawn with dark ink into its dark-theme form, in a folder DarkTheme beside
# it, and writes the list of the whole bundle to BUNDLE_DIR/Quorrel.qrc. An icon without ink reads
# on both backgrounds and gets no second form.

set(ink "#2b3a4a")
set(dark_theme_ink "#dde5ec")

file(REMOVE_RECURSE ${BUNDLE_DIR}/dark)
set(entries)

file(GLOB_RECURSE icons RELATIVE ${RESOURCE_DIR}/icons ${RESOURCE_DIR}/icons/*.svg)
list(SORT icons)
foreach(icon IN LISTS icons)
    string(APPEND entries "    <file alias=\"Icons/${icon}\">${RESOURCE_DIR}/icons/${icon}</file>\n")
    file(READ "${RESOURCE_DIR}/icons/${icon}" picture)
    string(FIND "${picture}" "${ink}" position)
    if(position GREATER_EQUAL 0)
        string(REPLACE "${ink}" "${dark_theme_ink}" picture "${picture}")
        file(WRITE "${BUNDLE_DIR}/dark/${icon}" "${picture}")
        get_filename_component(folder "${icon}" DIRECTORY)
        get_filename_component(name "${icon}" NAME)
        string(REGEX REPLACE "(.)$" "\\1/" folder "${folder}")
        string(APPEND entries
               "    <file alias=\"Icons/${folder}DarkTheme/${name}\">${BUNDLE_DIR}/dark/${icon}</file>\n")
    endif()
endforeach()

file(GLOB shaders RELATIVE ${RESOURCE_DIR}/shaders ${RESOURCE_DIR}/shaders/*.txt)
foreach(shader IN LISTS shaders)
    string(APPEND entries
           "    <file alias=\"Misc/OpenGL/Shaders/${shader}\">${RESOURCE_DIR}/shaders/${shader}</file>\n")
endforeach()

file(WRITE ${BUNDLE_DIR}/Quorrel.qrc "<RCC>\n  <qresource prefix=\"/\">\n${entries}  </qresource>\n</RCC>\n")
