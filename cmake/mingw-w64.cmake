# Cross-compiling to 64-bit Windows with Debian's MinGW-w64, posix threads: std::mutex and std::thread need them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(toolchain_prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${toolchain_prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${toolchain_prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${toolchain_prefix}-windres)
set(CMAKE_DLLTOOL ${toolchain_prefix}-dlltool)
set(CMAKE_OBJCOPY ${toolchain_prefix}-objcopy)
set(CMAKE_STRIP ${toolchain_prefix}-strip)

set(CMAKE_FIND_ROOT_PATH /usr/${toolchain_prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# One Wine prefix serves every preset: making one takes ten seconds.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/test-under-wine)
