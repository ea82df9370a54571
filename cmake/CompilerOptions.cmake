# What every translation unit of ours is compiled and linked with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_EXTENSIONS OFF)

# Each compiler's own file gives these targets their options. It also says how what isn't to take long is built
# (NORV_UNOPTIMISED, NORV_LIGHTLY_OPTIMISED), and how a library is shipped whose symbols lie beside it
# (norv_symbols_beside(LIBRARY INSIDE), of which INSIDE are the objects).
add_library(norv_options INTERFACE)
target_compile_definitions(norv_options INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                           WINVER=0x0601 _WIN32_WINNT=0x0601)

# What goes into other makers' processes and parses their files: canaries in its frames, sizes checked where
# they are known, and an image that the system may lay out anywhere and doesn't run data of.
add_library(norv_hardening INTERFACE)

if(MSVC)
  include(${CMAKE_CURRENT_LIST_DIR}/MicrosoftOptions.cmake)
else()
  include(${CMAKE_CURRENT_LIST_DIR}/GnuOptions.cmake)
endif()
