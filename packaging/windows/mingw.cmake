# Compiles for Windows on Debian: the cross compiler, and Qt as packaging/windows/toolchain has built it into the folder
# that the environment names as VARNOTH_WINDOWS_TOOLS.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if("$ENV{VARNOTH_WINDOWS_TOOLS}" STREQUAL "")
    message(FATAL_ERROR "VARNOTH_WINDOWS_TOOLS names no folder; packaging/windows/build sets it.")
endif()
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
set(CMAKE_FIND_ROOT_PATH $ENV{VARNOTH_WINDOWS_TOOLS}/qt /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt for Windows cannot unpack what Debian's rcc would pack with zstd.
set(CMAKE_AUTORCC_OPTIONS --no-zstd)

# What a build or test starts of its own programs, it starts by this.
find_program(CMAKE_CROSSCOMPILING_EMULATOR wine)

# Windows 10 is the oldest that is served.
add_compile_definitions(_WIN32_WINNT=0x0A00 NOMINMAX WIN32_LEAN_AND_MEAN _POSIX_THREAD_SAFE_FUNCTIONS)
