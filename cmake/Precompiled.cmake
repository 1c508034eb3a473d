# Headers of Qt, GoogleTest and the standard library that most sources of a kind include take longer to read than the
# sources themselves; a build from nothing reads them once for each kind. No header of ours is among them: a wrong include
# is still a file that the compiler cannot find. The windows preset does without them, so that the sources of the product
# still name what they use.

# varnoth_headers(KIND HEADERS header... [LIBS library...]): the precompiled headers of a KIND of sources.
function(varnoth_headers kind)
    cmake_parse_arguments(KIND "" "" "HEADERS;LIBS" ${ARGN})
    if(NOT VARNOTH_PRECOMPILED)
        return()
    endif()
    set(source ${CMAKE_BINARY_DIR}/headers/headers_${kind}.cpp)
    if(NOT EXISTS ${source})
        file(WRITE ${source} "")
    endif()
    add_library(varnoth_headers_${kind} OBJECT ${source})
    target_link_libraries(varnoth_headers_${kind} PRIVATE ${KIND_LIBS})
    list(TRANSFORM KIND_HEADERS REPLACE "(.+)" "<\\1>")
    target_precompile_headers(varnoth_headers_${kind} PRIVATE ${KIND_HEADERS})
endfunction()

# varnoth_use_headers(TARGET KIND): lets TARGET start from the precompiled headers of its KIND.
function(varnoth_use_headers target kind)
    if(VARNOTH_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM varnoth_headers_${kind})
    endif()
endfunction()
