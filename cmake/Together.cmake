# Most of what a compiler does for a source is the same for its neighbours: it reads the headers of the rooms and
# instantiates templates of the standard library, Qt and GoogleTest. Where VARNOTH_TOGETHER is on, it does so once for
# several sources of a target. The other presets read each source alone, so that each still names what it uses.

# varnoth_own_names(SOURCE VARIABLE): the names that the unnamed namespaces of a source have for its own, as far as a
# glance at its lines tells.
function(varnoth_own_names source variable)
    file(READ ${source} text)
    string(REGEX REPLACE "[][;\\]" "=" text "${text}")
    string(REGEX MATCHALL "\n([A-Za-z}]| +[A-Z][A-Za-z0-9_]+ =)[^\n]*" lines "${text}")
    set(names "")
    set(own OFF)
    foreach(line IN LISTS lines)
        if(line STREQUAL "\nnamespace {")
            set(own ON)
        elseif(line STREQUAL "\n} // namespace")
            set(own OFF)
        elseif(own AND NOT line MATCHES "^\n(template|using [A-Za-z_:]+=|using namespace|return|[A-Z_]+\\()")
            string(REGEX MATCHALL "[A-Za-z0-9_]+ =" constants "${line}")
            string(REGEX REPLACE "[(={].*| :.*" "" line "${line}")
            string(REGEX MATCH "[A-Za-z0-9_]+ *$" name "${line}")
            list(APPEND names ${name} ${constants})
        endif()
    endforeach()
    string(REGEX REPLACE "[ =]" "" names "${names}")
    set(${variable} "${names}" PARENT_SCOPE)
endfunction()

# varnoth_together(TARGET AT_MOST n [ALONE file...]): compiles the sources of TARGET in groups of n at most, in which no
# two have a name of their own in common. ALONE are those that have one that a header of another means for something else.
function(varnoth_together)
    if(VARNOTH_TOGETHER)
        # When the folder's CMakeLists.txt has named all sources.
        list(JOIN ARGV " " arguments)
        cmake_language(EVAL CODE "cmake_language(DEFER CALL varnoth_group_sources ${arguments})")
    endif()
endfunction()

function(varnoth_group_sources target)
    cmake_parse_arguments(ARG "" "AT_MOST" "ALONE" ${ARGN})
    # A type in an unnamed namespace, which is no other in each source that is compiled with it.
    set_target_properties(${target} PROPERTIES
        UNITY_BUILD ON
        UNITY_BUILD_MODE GROUP
        UNITY_BUILD_CODE_BEFORE_INCLUDE "#pragma GCC diagnostic ignored \"-Wsubobject-linkage\"")
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(FILTER sources EXCLUDE REGEX "^/") # those that the build makes
    if(ARG_ALONE)
        list(REMOVE_ITEM sources ${ARG_ALONE})
    endif()
    set(groups 0)
    foreach(source IN LISTS sources)
        get_filename_component(path ${source} ABSOLUTE)
        varnoth_own_names(${path} names)
        varnoth_group_for("${names}")
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${target}_${group})
    endforeach()
endfunction()

# The first of the groups that has room and none of the names, or else a new one; its number is then in group.
macro(varnoth_group_for names)
    set(group 0)
    set(agreed OFF)
    while(NOT agreed)
        math(EXPR group "${group} + 1")
        set(agreed ON)
        if(group GREATER groups)
            set(groups ${group})
            set(names_${group} "")
            set(size_${group} 0)
        elseif(size_${group} EQUAL ARG_AT_MOST)
            set(agreed OFF)
        else()
            foreach(name ${names})
                if(name IN_LIST names_${group})
                    set(agreed OFF)
                endif()
            endforeach()
        endif()
    endwhile()
    list(APPEND names_${group} ${names})
    math(EXPR size_${group} "${size_${group}} + 1")
endmacro()
