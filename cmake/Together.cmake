# Most of what a compiler does for a test source is the same for its neighbours: it instantiates templates of GoogleTest,
# Qt and the standard library, and reads the headers of the rooms. Where VARNOTH_TOGETHER is on, it does so once for
# several sources of a program. The other presets read each source alone, so that each still names what it uses.

# varnoth_together(TARGET [ALONE file...]): compiles the sources of TARGET a few at a time. ALONE are those in which an
# unnamed namespace has a name that another source of the program or a room knows for something else.
function(varnoth_together target)
    cmake_parse_arguments(ARG "" "" "ALONE" ${ARGN})
    if(NOT VARNOTH_TOGETHER)
        return()
    endif()
    # A fixture in an unnamed namespace, which is no other in each source that is compiled with it.
    set_target_properties(${target} PROPERTIES
        UNITY_BUILD ON
        UNITY_BUILD_BATCH_SIZE 8
        UNITY_BUILD_CODE_BEFORE_INCLUDE "#pragma GCC diagnostic ignored \"-Wsubobject-linkage\"")
    set_source_files_properties(${ARG_ALONE} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
