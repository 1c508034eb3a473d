# GTest::gtest and GTest::gmock: as Debian has compiled them, or compiled from Debian's sources for another system.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(GTest REQUIRED)
    return()
endif()

foreach(library gtest gmock)
    string(REGEX REPLACE "^g" "/usr/src/googletest/google" folder ${library}) # Debian: googletest
    add_library(${library} STATIC EXCLUDE_FROM_ALL ${folder}/src/${library}-all.cc)
    target_include_directories(${library} SYSTEM PUBLIC ${folder}/include PRIVATE ${folder})
    add_library(GTest::${library} ALIAS ${library})
endforeach()
target_link_libraries(gmock PUBLIC gtest)
