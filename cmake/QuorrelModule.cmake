# The compiler settings every target shares, and the function that makes one library target per folder.

add_library(quorrel_options INTERFACE)
target_include_directories(quorrel_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_features(quorrel_options INTERFACE cxx_std_20)
target_compile_definitions(quorrel_options INTERFACE QT_NO_CAST_TO_ASCII)
# Results are prescribed to the last bit, so multiplication and addition must never be fused.
target_compile_options(quorrel_options INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor
                                                 -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(quorrel_options INTERFACE -Wno-overloaded-virtual)
endif()
if(QUORREL_WARNINGS_AS_ERRORS)
    target_compile_options(quorrel_options INTERFACE -Werror)
endif()
if(QUORREL_SANITIZE OR QUORREL_FUZZ)
    set(sanitizers -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_compile_options(quorrel_options INTERFACE ${sanitizers})
    target_link_options(quorrel_options INTERFACE ${sanitizers})
endif()
if(QUORREL_FUZZ)
    target_compile_options(quorrel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quorrel_module(<target> SOURCES <files...> LINK <targets...>)
# A static library that sees only what it links: a wrong include of another floor's generated
# header or symbol does not link. A folder of headers alone makes an interface library.
function(quorrel_module target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    set(sources ${arg_SOURCES})
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    if(NOT sources)
        add_library(${target} INTERFACE)
        target_link_libraries(${target} INTERFACE quorrel_options ${arg_LINK})
        return()
    endif()
    add_library(${target} STATIC ${arg_SOURCES})
    target_link_libraries(${target} PUBLIC quorrel_options ${arg_LINK})
endfunction()

# quorrel_files(<variable> <folder> [EXCLUDE <class names...>]) collects the headers and sources of a folder.
function(quorrel_files variable folder)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "EXCLUDE")
    file(GLOB files CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.cpp)
    foreach(name IN LISTS arg_EXCLUDE)
        list(FILTER files EXCLUDE REGEX "/${name}\\.(h|cpp)$")
    endforeach()
    set(${variable} ${files} PARENT_SCOPE)
endfunction()

# quorrel_class_files(<variable> <folder> <class names...>) names the header and source of each class.
function(quorrel_class_files variable folder)
    set(patterns)
    foreach(name IN LISTS ARGN)
        list(APPEND patterns ${folder}/${name}.h ${folder}/${name}.cpp)
    endforeach()
    file(GLOB files CONFIGURE_DEPENDS ${patterns})
    set(${variable} ${files} PARENT_SCOPE)
endfunction()
