# Compiler options of every target of the project, as one interface target to link privately, and
# the declaration of a library that holds one folder of src.

add_library(meridax_options INTERFACE)
target_compile_definitions(meridax_options INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH)
target_compile_options(meridax_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual)

option(MERIDAX_WERROR "Treat compiler warnings as errors" ON)
if(MERIDAX_WERROR)
    target_compile_options(meridax_options INTERFACE -Werror)
endif()

set(MERIDAX_SANITIZE "" CACHE STRING "Sanitizers for all targets: address,undefined or thread")
if(MERIDAX_SANITIZE)
    add_compile_options(-fsanitize=${MERIDAX_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${MERIDAX_SANITIZE})
endif()

# meridax_add_library(<folder> SOURCES ... [PUBLIC targets...] [PRIVATE targets...] [MOC])
#
# The static library meridax_<folder>. Its headers are included as "<folder>/Name.h". MOC is for
# folders with QObject classes.
function(meridax_add_library folder)
    cmake_parse_arguments(PARSE_ARGV 1 arg "MOC" "" "SOURCES;PUBLIC;PRIVATE")
    qt_add_library(meridax_${folder} STATIC ${arg_SOURCES})
    set_target_properties(meridax_${folder} PROPERTIES AUTOMOC ${arg_MOC})
    target_include_directories(meridax_${folder} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(meridax_${folder}
        PUBLIC ${arg_PUBLIC}
        PRIVATE meridax_options ${arg_PRIVATE})
endfunction()
