# The targets of rooms and libraries, as targets are called.
function(zephyne_targets_of result)
  set(targets)
  foreach(used IN LISTS ARGN)
    if(NOT TARGET ${used} AND NOT used MATCHES "::")
      string(REPLACE "/" "_" used zephyne_${used})
    endif()
    list(APPEND targets ${used})
  endforeach()
  set(${result} ${targets} PARENT_SCOPE)
endfunction()

# A room is one folder, one static library, and the list of rooms and libraries that
# its files may include.
#
# All rooms write their includes from the root ("core/settings.h"), but the root itself
# is on nobody's include path. Each room gets a folder of its own in the build tree that
# holds nothing but a link to it, and that folder reaches only those who link the room.
#
#   zephyne_room(<folder> USES <room or library>... [EXCEPT <subfolder>...])
#
# The target is called zephyne_<folder>, with "/" as "_". EXCEPT names subfolders that
# are rooms themselves.
function(zephyne_room folder)
  cmake_parse_arguments(ROOM "" "" "USES;EXCEPT" ${ARGN})
  string(REPLACE "/" "_" name ${folder})

  set(here ${CMAKE_SOURCE_DIR}/${folder})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${here}/*.cpp ${here}/*.h ${here}/*.qrc)
  foreach(subfolder IN LISTS ROOM_EXCEPT)
    list(FILTER sources EXCLUDE REGEX "^${CMAKE_SOURCE_DIR}/${folder}/${subfolder}/")
  endforeach()

  cmake_path(GET folder PARENT_PATH parent)
  set(visible ${CMAKE_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${visible}/${parent})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${folder} ${visible}/${folder} SYMBOLIC)

  zephyne_targets_of(libraries ${ROOM_USES})
  add_library(zephyne_${name} STATIC ${sources})
  set_target_properties(zephyne_${name} PROPERTIES AUTORCC ON)
  target_include_directories(zephyne_${name} PUBLIC ${visible})
  target_link_libraries(zephyne_${name} PUBLIC ${libraries} PRIVATE zephyne_warnings)
endfunction()

# Warnings are errors only where a developer asked for it (the dev and asan presets), so
# that a newer compiler never keeps a newcomer from building.
option(ZEPHYNE_WERROR "Treat warnings as errors" OFF)
add_library(zephyne_warnings INTERFACE)
target_compile_options(zephyne_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow
  -Wnon-virtual-dtor -Wno-missing-field-initializers $<$<BOOL:${ZEPHYNE_WERROR}>:-Werror>)

# For a program or test: link these rooms, with the same warnings.
function(zephyne_program name)
  cmake_parse_arguments(PROGRAM "" "" "SOURCES;USES" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  zephyne_targets_of(libraries ${PROGRAM_USES})
  target_link_libraries(${name} PRIVATE ${libraries} zephyne_warnings)
endfunction()
