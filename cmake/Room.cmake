# Every folder under src/ is a room: one static library that sees its own headers and those of the rooms it
# names, and no others. A wrong include is then a file that the compiler cannot find.

# What touches the system comes in pairs behind one header, NAME_posix.cpp and NAME_windows.cpp, of which a room lists
# NAME_${VARNOTH_SYSTEM}.cpp.
if(WIN32)
    set(VARNOTH_SYSTEM windows)
else()
    set(VARNOTH_SYSTEM posix)
endif()

add_library(varnoth_warnings INTERFACE)
target_compile_options(varnoth_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<BOOL:${VARNOTH_WERROR}>:-Werror>)
if(VARNOTH_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(VARNOTH_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
if(VARNOTH_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

set(standard_headers algorithm array charconv chrono functional map memory optional span string string_view vector)
varnoth_headers(rules
    HEADERS ${standard_headers}
    LIBS varnoth_warnings)
# Who uses Qt is compiled as Qt asks for; precompiled headers serve only sources that are compiled alike.
varnoth_headers(core
    HEADERS ${standard_headers} filesystem
    LIBS Qt6::Core varnoth_warnings)
varnoth_headers(windows
    HEADERS algorithm array functional map memory optional string vector
        QAction QApplication QComboBox QDialog QFileInfo QLabel QLineEdit QMainWindow QMdiArea QMdiSubWindow QMessageBox
        QMouseEvent QPainter QPainterPath QPushButton QTimer QVBoxLayout
    LIBS Qt6::Widgets varnoth_warnings)

# varnoth_room(NAME SOURCES file... [ALONE file...] [ROOMS room...] [PRIVATE_ROOMS room...] [LIBS library...] [QT]): the
# static library varnoth_NAME. ALONE are sources that cannot be compiled with others (varnoth_together). Who uses a room
# also sees its ROOMS; PRIVATE_ROOMS only its own sources see, and who includes a header that names one of those lists
# that room itself. QT stands where Qt comes with a room.
function(varnoth_room name)
    cmake_parse_arguments(ROOM "QT" "" "SOURCES;ALONE;ROOMS;PRIVATE_ROOMS;LIBS" ${ARGN})
    add_library(varnoth_${name} STATIC ${ROOM_SOURCES} ${ROOM_ALONE})
    target_include_directories(varnoth_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    varnoth_together(varnoth_${name} AT_MOST 8 ALONE ${ROOM_ALONE})
    list(TRANSFORM ROOM_ROOMS PREPEND varnoth_)
    list(TRANSFORM ROOM_PRIVATE_ROOMS PREPEND varnoth_)
    target_link_libraries(varnoth_${name}
        PUBLIC ${ROOM_ROOMS} ${ROOM_LIBS}
        PRIVATE ${ROOM_PRIVATE_ROOMS} varnoth_warnings)
    if(ROOM_LIBS MATCHES "Qt6::Widgets")
        varnoth_use_headers(varnoth_${name} windows)
        set_target_properties(varnoth_${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
    elseif(ROOM_LIBS MATCHES "Qt6::" OR ROOM_QT)
        varnoth_use_headers(varnoth_${name} core)
    else()
        varnoth_use_headers(varnoth_${name} rules)
    endif()
endfunction()
