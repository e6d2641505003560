# JSON: Debian's nlohmann-json3-dev, header-only. Only its nlohmann/ folder goes on the
# include path, through a link in the build tree, so that the MinGW build sees no other
# host header. Target: zelto_json.
if(TARGET zelto_json)
    return()
endif()
find_path(ZELTO_JSON_INCLUDE_DIR nlohmann/json.hpp
    PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(NOT ZELTO_JSON_INCLUDE_DIR)
    message(FATAL_ERROR "nlohmann/json.hpp not found: run scripts/install-deps.sh")
endif()
set(ZELTO_JSON_LINK_DIR ${CMAKE_BINARY_DIR}/json-include)
file(MAKE_DIRECTORY ${ZELTO_JSON_LINK_DIR})
file(CREATE_LINK ${ZELTO_JSON_INCLUDE_DIR}/nlohmann ${ZELTO_JSON_LINK_DIR}/nlohmann SYMBOLIC)
add_library(zelto_json INTERFACE)
target_include_directories(zelto_json SYSTEM INTERFACE ${ZELTO_JSON_LINK_DIR})
