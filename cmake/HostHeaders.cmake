# Debian's header-only packages lie among the host's own headers, which a cross compiler must not see:
# a folder of links shows it those packages and nothing else.
set(host_headers ${CMAKE_BINARY_DIR}/host-headers)
file(MAKE_DIRECTORY ${host_headers})
foreach(package CLI nlohmann fmt)
  if(NOT EXISTS /usr/include/${package})
    message(FATAL_ERROR "/usr/include/${package} is missing: ./norv build installs it.")
  endif()
  file(CREATE_LINK /usr/include/${package} ${host_headers}/${package} SYMBOLIC)
endforeach()

add_library(host_headers INTERFACE)
target_include_directories(host_headers SYSTEM INTERFACE ${host_headers})
target_compile_definitions(host_headers INTERFACE FMT_HEADER_ONLY)
