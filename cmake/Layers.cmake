# kyr_layer(NAME FOLDER...): an object library of all sources of some folders, found anew at each
# build. A layer without sources is passed over. host/main.cpp belongs to the command alone.
function(kyr_layer name)
  set(sources)
  foreach(folder ${ARGN})
    file(GLOB found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  list(REMOVE_ITEM sources ${PROJECT_SOURCE_DIR}/host/main.cpp)
  if(NOT sources)
    return()
  endif()
  add_library(${name} OBJECT ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_include_directories(${name} PRIVATE ${PROJECT_BINARY_DIR}/generated)
  target_include_directories(${name} SYSTEM PRIVATE
    ${RAPIDJSON_INCLUDE_DIR} ${CLI11_INCLUDE_DIR} ${EXPAT_INCLUDE_DIRS}
    ${LIBXML2_INCLUDE_DIRS})
  target_link_libraries(${name} PRIVATE kyr_options)
endfunction()

# kyr_use_layers(TARGET SCOPE LAYER...): the objects of those layers that exist become part of TARGET.
function(kyr_use_layers target scope)
  foreach(layer ${ARGN})
    if(TARGET ${layer})
      target_sources(${target} ${scope} $<TARGET_OBJECTS:${layer}>)
    endif()
  endforeach()
endfunction()

# kyr_tests(NAME FOLDERS folder... [LAYERS layer...] [LIBRARIES library...] [SOURCES file...]): one
# GoogleTest program of all sources below tests/<folder> and of SOURCES, with the objects of the layers
# that it tests and, behind them, libkyr and the helpers of tests/support.
function(kyr_tests name)
  cmake_parse_arguments(arg "" "" "FOLDERS;LAYERS;LIBRARIES;SOURCES" ${ARGN})
  set(sources)
  foreach(folder ${arg_FOLDERS})
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources} ${arg_SOURCES})
  kyr_use_layers(${name} PRIVATE ${arg_LAYERS})
  if(TARGET test_support)
    target_link_libraries(${name} PRIVATE test_support)
  endif()
  target_link_libraries(${name} PRIVATE libkyr ${arg_LIBRARIES} GTest::gtest_main GTest::gmock kyr_options)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/generated)
  target_include_directories(${name} SYSTEM PRIVATE ${RAPIDJSON_INCLUDE_DIR} ${CLI11_INCLUDE_DIR})
  target_compile_definitions(${name} PRIVATE KYR_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  target_compile_options(${name} PRIVATE ${KYR_TEST_COMPILE_OPTIONS})
  # Starting a program takes a sanitizer, and writing its counts gcov, longer than most tests, so there each
  # program is one test.
  if(KYR_SANITIZE OR KYR_COVERAGE)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 1200)
  else()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
  endif()
endfunction()

# kyr_compile_alone(FILE...): sources with a name of their own that a neighbour has too. Where the build
# compiles several sources as one (CMAKE_UNITY_BUILD), these stay by themselves.
function(kyr_compile_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
