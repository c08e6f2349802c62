# Where GoogleTest comes from and how a test program is registered.

if(WIN32)
  # No package holds GoogleTest for Windows: it is built from its packaged source.
  set(gtest_force_shared_crt ON)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
else()
  find_package(GTest REQUIRED)
  find_library(KALVORA_RAPIDCHECK rapidcheck REQUIRED)
endif()
include(GoogleTest)

# kalvora_test(KIND FOLDER LIBRARIES...): the test program of all sources in FOLDER, labelled KIND.
# Natively each case is a test of its own; under Wine, where starting a process is slow, the
# program is one test.
function(kalvora_test kind folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  if(folder STREQUAL ".")
    set(name ${kind}-tests)
  else()
    set(name ${kind}-${folder}-tests)
  endif()
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE KALVORA_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                                             KALVORA_BINARY_DIR="${CMAKE_BINARY_DIR}")
  target_link_libraries(${name} PRIVATE ${ARGN} kalvora_warnings GTest::gmock_main)
  if(WIN32)
    add_test(NAME wine.${name} COMMAND wine $<TARGET_FILE:${name}>)
    set_tests_properties(wine.${name} PROPERTIES LABELS ${kind} FIXTURES_REQUIRED wine-prefix
      ENVIRONMENT "WINEPREFIX=${CMAKE_BINARY_DIR}/wineprefix;WINEDEBUG=-all;WINEDLLOVERRIDES=mscoree,mshtml=")
  else()
    target_link_libraries(${name} PRIVATE ${KALVORA_RAPIDCHECK})
    gtest_discover_tests(${name} TEST_PREFIX ${kind}. DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${kind})
  endif()
endfunction()
