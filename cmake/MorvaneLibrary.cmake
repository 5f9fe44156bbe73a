# morvane_add_library(<folder> SOURCES ... [PUBLIC_LIBS ...] [PRIVATE_LIBS ...] [ROOT src|server])
# One static library per folder of src/ (named morvane_<folder>) or of server/ (named
# morvane_server_<folder>); its headers are included as "<folder>/<file>.h" from that root so that
# a layer's includes show where they point.
function(morvane_add_library folder)
    cmake_parse_arguments(ARG "" "ROOT" "SOURCES;PUBLIC_LIBS;PRIVATE_LIBS" ${ARGN})
    if(NOT ARG_ROOT)
        set(ARG_ROOT src)
    endif()
    if(ARG_ROOT STREQUAL "server")
        set(target morvane_server_${folder})
    else()
        set(target morvane_${folder})
    endif()
    add_library(${target} STATIC ${ARG_SOURCES})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/${ARG_ROOT})
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LIBS} PRIVATE ${ARG_PRIVATE_LIBS})
endfunction()
