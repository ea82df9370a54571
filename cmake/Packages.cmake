# What clients and tests are made of beside the product: targets of one name wherever they come from.
find_package(CLI11 CONFIG QUIET)
find_package(fmt CONFIG QUIET)
find_package(nlohmann_json CONFIG QUIET)
find_package(GTest CONFIG QUIET)
find_package(RapidJSON CONFIG QUIET)
if(RapidJSON_FOUND AND NOT TARGET rapidjson) # older ones tell a folder alone
  add_library(rapidjson INTERFACE IMPORTED GLOBAL)
  target_include_directories(rapidjson SYSTEM INTERFACE ${RAPIDJSON_INCLUDE_DIRS})
endif()

if(CMAKE_CROSSCOMPILING)
  include(${CMAKE_CURRENT_LIST_DIR}/HostPackages.cmake)
endif()

foreach(target CLI11::CLI11 fmt::fmt-header-only nlohmann_json::nlohmann_json rapidjson GTest::gmock)
  if(NOT TARGET ${target})
    message(FATAL_ERROR "Nothing was found that makes ${target}: docs/building.md says what to install.")
  endif()
endforeach()
