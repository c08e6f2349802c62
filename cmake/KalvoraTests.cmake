# Where GoogleTest comes from and how a test program is registered.

# A Windows program that is built elsewhere runs under Wine.
if(WIN32 AND CMAKE_CROSSCOMPILING)
  set(KALVORA_UNDER_WINE TRUE)
endif()

if(KALVORA_UNDER_WINE)
  # No package holds GoogleTest for the cross compiler: it is built from its packaged source.
  set(gtest_force_shared_crt ON)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
else()
  find_package(GTest REQUIRED)
endif()
if(NOT WIN32)
  find_library(KALVORA_RAPIDCHECK rapidcheck REQUIRED)
endif()
include(GoogleTest)
configure_file(${PROJECT_SOURCE_DIR}/tests/ProjectFolders.h.in
               ${CMAKE_BINARY_DIR}/generated/tests/ProjectFolders.h @ONLY)

# Wine for the tests that need it: a template made once, and a fresh prefix with a virtual screen that
# all the Windows test programs of one run share.
if(KALVORA_UNDER_WINE)
  set(KALVORA_WINE ${PROJECT_SOURCE_DIR}/tools/wine-prefix.sh)
  set(KALVORA_WINE_FOLDER ${CMAKE_BINARY_DIR}/wine)
  add_test(NAME wine.template COMMAND ${KALVORA_WINE} template)
  add_test(NAME wine.start COMMAND ${KALVORA_WINE} start ${KALVORA_WINE_FOLDER})
  add_test(NAME wine.stop COMMAND ${KALVORA_WINE} stop ${KALVORA_WINE_FOLDER})
  set_tests_properties(wine.template PROPERTIES FIXTURES_SETUP wine-template TIMEOUT 180)
  set_tests_properties(wine.start PROPERTIES FIXTURES_SETUP wine-prefix FIXTURES_REQUIRED wine-template
                                             TIMEOUT 180)
  set_tests_properties(wine.stop PROPERTIES FIXTURES_CLEANUP wine-prefix TIMEOUT 60)
endif()

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
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${CMAKE_BINARY_DIR}/generated/tests)
  target_link_libraries(${name} PRIVATE ${ARGN} posix kalvora_warnings GTest::gmock_main)
  add_dependencies(build-${kind} ${name})
  if(KALVORA_UNDER_WINE)
    add_test(NAME wine.${name} COMMAND ${KALVORA_WINE} run ${KALVORA_WINE_FOLDER} $<TARGET_FILE:${name}>)
    set_tests_properties(wine.${name} PROPERTIES LABELS ${kind} FIXTURES_REQUIRED wine-prefix TIMEOUT 900)
  elseif(WIN32)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS ${kind} TIMEOUT 900)
  else()
    target_link_libraries(${name} PRIVATE ${KALVORA_RAPIDCHECK})
    gtest_discover_tests(${name} TEST_PREFIX ${kind}. DISCOVERY_TIMEOUT 60
                         PROPERTIES LABELS ${kind} TIMEOUT 300)
  endif()
endfunction()
