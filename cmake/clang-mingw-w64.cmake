# The same with clang, as a second opinion: MinGW-w64's headers and libraries and GCC's own, read by another compiler.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)

execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
                OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(gcc_folder ${libgcc} DIRECTORY)

set(CMAKE_C_COMPILER clang-16)
set(CMAKE_CXX_COMPILER clang++-16)
set(CMAKE_C_COMPILER_TARGET ${toolchain_prefix})
set(CMAKE_CXX_COMPILER_TARGET ${toolchain_prefix})

# Debian's folder names its model of threads, by which clang doesn't know it for one of GCC's.
set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES
    ${gcc_folder}/include/c++ ${gcc_folder}/include/c++/${toolchain_prefix} ${gcc_folder}/include/c++/backward)
set(linker_flags "-B${gcc_folder} -L${gcc_folder} -pthread")
set(CMAKE_EXE_LINKER_FLAGS_INIT ${linker_flags})
set(CMAKE_SHARED_LINKER_FLAGS_INIT ${linker_flags})
set(CMAKE_MODULE_LINKER_FLAGS_INIT ${linker_flags})

# As the standard library was compiled, which shares thread-local data with what is made of its headers, and has the
# one comparison of types. GCC says the latter by itself on this system.
set(CMAKE_CXX_FLAGS_INIT "-femulated-tls -D__GXX_TYPEINFO_EQUALITY_INLINE=0")
