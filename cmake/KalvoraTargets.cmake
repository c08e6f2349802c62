# How our own targets are built: one static library a folder of src/, warnings as errors.

option(KALVORA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

add_library(kalvora_warnings INTERFACE)
if(MSVC)
  target_compile_options(kalvora_warnings INTERFACE /W4 /WX /utf-8 /permissive-)
else()
  target_compile_options(kalvora_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
endif()

if(MINGW)
  # What the program does not use stays out of it.
  add_compile_options(-ffunction-sections -fdata-sections)
  # No time of the linking in it either: the same sources give the same bytes. Sections begin at
  # whole pages of the file, so that only what is used of them comes into memory, under Wine too.
  add_link_options(-Wl,--gc-sections -Wl,--no-insert-timestamp -Wl,--file-alignment=4096)
endif()

if(KALVORA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# kalvora_library(NAME DEPENDS... [SOURCES FILE...]): the static library of this folder, from all its sources. A folder
# that holds two things names the sources of each.
function(kalvora_library name)
  cmake_parse_arguments(room "" "" SOURCES ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(room_SOURCES)
    list(REMOVE_ITEM sources ${room_SOURCES})
    if(sources)
      message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR}/CMakeLists.txt names them in no group: ${sources}")
    endif()
    set(sources ${room_SOURCES})
  endif()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${room_UNPARSED_ARGUMENTS} PRIVATE kalvora_warnings)
endfunction()
