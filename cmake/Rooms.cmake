# A room is a folder with one library. It sees the headers of the rooms that it names under DEPENDS and of
# those that stand below them, and no others: each library offers its headers through an include folder that
# holds a link to this room alone, so an include of a room that is not linked does not compile.

set(VELMAR_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast -Wimplicit-fallthrough -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 warns of overlapping copies in the library's own joining of a literal and a text (its bug 105651) and,
  # with -O2, of unset members where the library moves a variant that holds an empty optional.
  list(APPEND VELMAR_WARNINGS -Wno-restrict -Wno-maybe-uninitialized)
endif()

add_library(velmar_flags INTERFACE)
target_compile_options(velmar_flags INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:${VELMAR_WARNINGS}>")
if(VELMAR_SANITIZE)
  target_compile_options(velmar_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)
  target_link_options(velmar_flags INTERFACE -fsanitize=address,undefined)
endif()

# velmar_room(SOURCES a.cpp … HEADERS a.h … [DEPENDS platform/text …] [LINKS library …])
#   DEPENDS  rooms whose headers this room's own headers or sources include
#   LINKS    libraries from outside the project, for this room's sources only
function(velmar_room)
  cmake_parse_arguments(ROOM "" "" "SOURCES;HEADERS;DEPENDS;LINKS" ${ARGN})
  file(RELATIVE_PATH room "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
  string(REPLACE "/" "_" target "${room}")

  set(include "${PROJECT_BINARY_DIR}/include/${target}")
  cmake_path(GET room PARENT_PATH parent)
  file(MAKE_DIRECTORY "${include}/${parent}")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${include}/${room}" SYMBOLIC)

  list(TRANSFORM ROOM_HEADERS PREPEND "${include}/${room}/")
  if(ROOM_SOURCES)
    add_library(${target} STATIC ${ROOM_SOURCES})
    set(scope PUBLIC)
    target_compile_features(${target} PUBLIC cxx_std_20)
    # The flags are for the project's own build and no part of what is installed.
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:velmar_flags> ${ROOM_LINKS})
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  add_library(Velmar::${target} ALIAS ${target})
  target_sources(${target} ${scope} FILE_SET HEADERS BASE_DIRS "${include}" FILES ${ROOM_HEADERS})
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  foreach(dependency IN LISTS ROOM_DEPENDS)
    string(REPLACE "/" "_" library "${dependency}")
    if(NOT TARGET ${library})
      message(FATAL_ERROR "${room} depends on ${dependency}, which does not stand below it")
    endif()
    target_link_libraries(${target} ${scope} ${library})
  endforeach()
endfunction()

# velmar_test(SOURCES aTest.cpp … [LINKS library …])
# The tests of the room with the same path below tests/, as one executable; ctest runs each case by itself.
function(velmar_test)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  file(RELATIVE_PATH room "${PROJECT_SOURCE_DIR}/tests" "${CMAKE_CURRENT_SOURCE_DIR}")
  string(REPLACE "/" "_" target "${room}")
  add_executable(${target}_test ${TEST_SOURCES})
  target_include_directories(${target}_test PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_compile_definitions(${target}_test PRIVATE TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${target}_test PRIVATE velmar_flags ${target} ${TEST_LINKS} GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${target}_test TEST_PREFIX "${room}: " DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 600)
endfunction()
