# morvane_add_library(<folder> SOURCES ... [PUBLIC_LIBS ...] [PRIVATE_LIBS ...])
# One static library per folder of src/, named morvane_<folder>; its headers are included as
# "<folder>/<file>.h" from the src/ root so that a layer's includes show where they point.
function(morvane_add_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_LIBS;PRIVATE_LIBS" ${ARGN})
    set(target morvane_${folder})
    add_library(${target} STATIC ${ARG_SOURCES})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LIBS} PRIVATE ${ARG_PRIVATE_LIBS})
endfunction()
