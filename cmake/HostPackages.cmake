# For the cross build alone: packages that a Linux distribution has for itself, and of which nothing is compiled yet.
# Where the cross compiler has packages of its own, these are left alone.
set(NORV_HOST_PREFIXES /usr/local /usr CACHE STRING "below them lie this system's own packages")

function(norv_find_on_host variable file suffix package)
  find_path(${variable} ${file} PATHS ${NORV_HOST_PREFIXES} PATH_SUFFIXES ${suffix} NO_DEFAULT_PATH
            NO_CMAKE_FIND_ROOT_PATH DOC "the folder of ${file}")
  if(NOT ${variable})
    message(FATAL_ERROR "${file} isn't in ${suffix} below any of ${NORV_HOST_PREFIXES}. Install ${package} "
                        "(./norv build does), or name its folder: -D ${variable}=FOLDER")
  endif()
endfunction()

# Header-only packages lie among the host's own headers, which a cross compiler must not see: a folder of links shows
# it those packages and nothing else.
set(host_headers ${CMAKE_BINARY_DIR}/host-headers)
function(norv_host_headers target folder file package)
  if(TARGET ${target})
    return()
  endif()
  norv_find_on_host(NORV_HOST_${folder} ${folder}/${file} include ${package})
  file(MAKE_DIRECTORY ${host_headers})
  file(CREATE_LINK ${NORV_HOST_${folder}}/${folder} ${host_headers}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} SYSTEM INTERFACE ${host_headers})
endfunction()

norv_host_headers(CLI11::CLI11 CLI CLI.hpp libcli11-dev)
norv_host_headers(rapidjson rapidjson rapidjson.h rapidjson-dev)
norv_host_headers(nlohmann_json::nlohmann_json nlohmann json.hpp nlohmann-json3-dev)
if(NOT TARGET fmt::fmt-header-only)
  norv_host_headers(fmt::fmt-header-only fmt format.h libfmt-dev)
  target_compile_definitions(fmt::fmt-header-only INTERFACE FMT_HEADER_ONLY)
endif()

# GoogleTest is built along from its sources.
if(NOT TARGET GTest::gmock)
  norv_find_on_host(NORV_GOOGLETEST googlemock/CMakeLists.txt src/googletest googletest)
  add_subdirectory(${NORV_GOOGLETEST} ${CMAKE_BINARY_DIR}/tests/googletest EXCLUDE_FROM_ALL)
endif()
