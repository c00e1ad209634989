# nerlo_library(NAME SOURCE...) and nerlo_program(NAME SOURCE...): a target of our own code, with our
# warnings (as errors) and the tree's root as its include folder: #include "text/Utf.h".

add_library(nerlo_options INTERFACE)
target_include_directories(nerlo_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(nerlo_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-qual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 warns of overlaps inside its own std::string.
    target_compile_options(nerlo_options INTERFACE -Wno-restrict)
endif()

function(nerlo_library name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PRIVATE nerlo_options)
    target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR})
endfunction()

function(nerlo_program name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE nerlo_options)
endfunction()
