# GCC and clang, with MinGW-w64.
set(NORV_UNOPTIMISED -O0)
set(NORV_LIGHTLY_OPTIMISED $<$<NOT:$<CONFIG:Debug>>:-O1>)

target_compile_options(norv_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# GCC 12 sees overlaps in std::string's own operators where there are none.
target_compile_options(norv_options INTERFACE $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-restrict>)
# No run-time library beside the binaries: they go into other makers' processes.
target_link_options(norv_options INTERFACE -static)

# What is built tells nothing of the folder that it was built in.
target_compile_options(norv_options INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)

# A target with this property is linked with its symbols.
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  target_compile_definitions(norv_options INTERFACE _GLIBCXX_ASSERTIONS)
else()
  target_link_options(norv_options INTERFACE $<$<NOT:$<BOOL:$<TARGET_PROPERTY:NORV_KEEP_SYMBOLS>>>:-s>)
endif()

target_compile_options(norv_hardening INTERFACE -fstack-protector-strong)
# To the linker too: the compiler knows in which library the canaries are, if in any of its own.
target_link_options(norv_hardening INTERFACE -fstack-protector-strong -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug") # needs optimisation
  target_compile_definitions(norv_hardening INTERFACE _FORTIFY_SOURCE=2)
endif()

# The library once more, for the tests: it stops at undefined behaviour, and where the standard library is asked
# what it must not be. A trap is looked up by the names of functions: with lines and types, linking would take
# longer than the tests. It needs no run-time library, which MinGW-w64 doesn't have; vptr checks would need one.
add_library(norv_traps INTERFACE)
target_compile_definitions(norv_traps INTERFACE _GLIBCXX_ASSERTIONS)
target_compile_options(norv_traps INTERFACE
                       -O0 -g0 -U_FORTIFY_SOURCE # needs optimisation
                       -fsanitize=undefined -fsanitize-undefined-trap-on-error -fno-sanitize=vptr
                       -Wa,-mbig-obj) # whose sections outgrow the plain object format

# A file of its own, which the library names.
function(norv_symbols_beside library inside)
  if(CMAKE_BUILD_TYPE STREQUAL "Debug")
    return()
  endif()
  target_compile_options(${inside} PRIVATE -g)
  target_compile_options(${library} PRIVATE -g)
  set_target_properties(${library} PROPERTIES NORV_KEEP_SYMBOLS ON)
  set(symbols $<TARGET_FILE_DIR:${library}>/${library}.debug)
  add_custom_command(
    TARGET ${library} POST_BUILD
    COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${library}> ${symbols}
    COMMAND ${CMAKE_STRIP} $<TARGET_FILE:${library}>
    COMMAND ${CMAKE_OBJCOPY} --add-gnu-debuglink=${symbols} $<TARGET_FILE:${library}>
    BYPRODUCTS ${PROJECT_BINARY_DIR}/bin/${library}.debug
    VERBATIM)
endfunction()
