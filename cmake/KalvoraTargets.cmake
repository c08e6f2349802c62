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

# kalvora_library(NAME DEPENDS...): the static library of this folder, from all its sources.
function(kalvora_library name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} INTERFACE ${ARGN})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE kalvora_warnings)
endfunction()
