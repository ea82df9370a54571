# Microsoft's compiler. What is resources goes through another program, which knows none of these options.
function(norv_compile_options target)
  target_compile_options(${target} INTERFACE "$<$<COMPILE_LANGUAGE:C,CXX>:${ARGN}>")
endfunction()

set(NORV_UNOPTIMISED "") # it is fast enough, and tells of each option that takes back another
set(NORV_LIGHTLY_OPTIMISED "")

# No run-time library beside the binaries: they go into other makers' processes.
set(CMAKE_MSVC_RUNTIME_LIBRARY MultiThreaded$<$<CONFIG:Debug>:Debug>)

norv_compile_options(norv_options /W4 /WX /external:anglebrackets /external:W0
                     /permissive- /Zc:__cplusplus /Zc:preprocessor /Zc:inline /utf-8
                     /bigobj) # the tests' sections outgrow the plain object format
# An attribute that it doesn't know, [[gnu::format]]; room for alignment, where it was asked for; and definitions of a
# test's own, which the headers that are read once for all tests weren't read with.
norv_compile_options(norv_options /wd5030 /wd4324 /wd4605)
# The standard library's functions are meant where they are called, and not its maker's own in place of them.
target_compile_definitions(norv_options INTERFACE _CRT_SECURE_NO_WARNINGS _CRT_NONSTDC_NO_WARNINGS)

norv_compile_options(norv_hardening /GS /sdl /guard:cf)
target_link_options(norv_hardening INTERFACE /DYNAMICBASE /HIGHENTROPYVA /NXCOMPAT /GUARD:CF)

# A program database, which the library names without the folder that it was built in.
function(norv_symbols_beside library inside)
  if(CMAKE_BUILD_TYPE STREQUAL "Debug") # has one anyway
    return()
  endif()
  target_compile_options(${inside} PRIVATE /Zi)
  target_compile_options(${library} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:/Zi>)
  target_link_options(${library} PRIVATE /DEBUG /OPT:REF /OPT:ICF /PDBALTPATH:%_PDB%)
endfunction()
