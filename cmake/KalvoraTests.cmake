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

# kalvora_test(KIND FOLDER LIBRARIES...): the test program of all sources in FOLDER, labelled KIND. The program
# is one test: to start it for each of its cases takes longer than they do, under Wine and with the sanitizers.
function(kalvora_test kind folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  if(folder STREQUAL ".")
    set(program ${kind}-tests)
  else()
    set(program ${kind}-${folder}-tests)
  endif()
  add_executable(${program} ${sources})
  target_include_directories(${program} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${CMAKE_BINARY_DIR}/generated/tests)
  target_link_libraries(${program} PRIVATE ${ARGN} posix kalvora_warnings GTest::gmock_main)
  if(NOT WIN32)
    target_link_libraries(${program} PRIVATE ${KALVORA_RAPIDCHECK})
  endif()
  add_dependencies(build-${kind} ${program})
  if(KALVORA_UNDER_WINE)
    set(test wine.${program})
    add_test(NAME ${test} COMMAND ${KALVORA_WINE} run ${KALVORA_WINE_FOLDER} $<TARGET_FILE:${program}>)
    set_tests_properties(${test} PROPERTIES FIXTURES_REQUIRED wine-prefix)
  else()
    set(test ${program})
    add_test(NAME ${test} COMMAND ${program})
  endif()
  set_tests_properties(${test} PROPERTIES LABELS ${kind} COST 100 TIMEOUT 900)
endfunction()
