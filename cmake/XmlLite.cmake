# XmlLite, which belongs to Windows. MinGW-w64 has its header and no import library: that is made here, from the one
# function that we import.
add_library(xmllite INTERFACE)
if(NOT MINGW)
  target_link_libraries(xmllite INTERFACE xmllite.lib)
  return()
endif()

set(xmllite_definition ${CMAKE_CURRENT_LIST_DIR}/xmllite.def)
set(xmllite_library ${CMAKE_BINARY_DIR}/libxmllite.a)

add_custom_command(
  OUTPUT ${xmllite_library}
  COMMAND ${CMAKE_DLLTOOL} --input-def ${xmllite_definition} --output-lib ${xmllite_library}
  DEPENDS ${xmllite_definition}
  VERBATIM)
add_custom_target(xmllite_import DEPENDS ${xmllite_library})

add_dependencies(xmllite xmllite_import)
target_link_libraries(xmllite INTERFACE ${xmllite_library})
