# Compiler settings that every target of the project shares, and the functions that make a folder a
# target which sees only the include paths of what it may use.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# A linker that takes a fraction of the time, where there is one.
find_program(NEVO_LLD ld.lld)
if(NEVO_LLD AND CMAKE_BUILD_TYPE STREQUAL "Debug")
  add_link_options(-fuse-ld=lld)
endif()

find_program(NEVO_CCACHE ccache)
if(NEVO_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${NEVO_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${NEVO_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -ffunction-sections -fdata-sections -fstack-protector-strong)
# Clang builds the fuzz targets only; what it says beyond GCC is for reading.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Werror -Wshadow=local)
endif()
add_link_options(-Wl,--gc-sections -Wl,-z,relro,-z,now)
add_compile_definitions(BOOST_BIND_GLOBAL_PLACEHOLDERS BOOST_ALL_NO_LIB)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
endif()

if(NEVO_SANITIZE)
  add_compile_options(-fsanitize=${NEVO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${NEVO_SANITIZE})
  # The sockets library has fences, which the thread sanitizer does not follow; what it shares is locked as well.
  if(NEVO_SANITIZE MATCHES "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-tsan)
  endif()
endif()

if(NEVO_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# nevo_headers(NAME DIR...)
# One source that includes every header of the folders, built on demand only: what a header needs it includes itself,
# and the checks of names read it once instead of once for each source.
function(nevo_headers name)
  set(text "")
  foreach(dir ${ARGN})
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.h)
    foreach(header ${found})
      string(APPEND text "#include \"${header}\"\n")
    endforeach()
  endforeach()
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}_headers.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "${text}")
  add_library(${name}_headers OBJECT EXCLUDE_FROM_ALL ${source})
  target_link_libraries(${name}_headers PRIVATE ${name})
endfunction()

# nevo_library(NAME DIRS dir... [LINKS lib...] [PRIVATE_LINKS lib...])
# A static library of all .cpp files that lie directly in the given folders, which are also its public
# include path.
function(nevo_library name)
  cmake_parse_arguments(ARG "" "" "DIRS;LINKS;PRIVATE_LINKS" ${ARGN})
  set(sources)
  set(includes)
  foreach(dir ${ARG_DIRS})
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.cpp)
    list(APPEND sources ${found})
    list(APPEND includes ${CMAKE_CURRENT_SOURCE_DIR}/${dir})
  endforeach()
  if(sources)
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${includes})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${includes})
    target_link_libraries(${name} INTERFACE ${ARG_LINKS})
  endif()
  nevo_headers(${name} ${ARG_DIRS})
endfunction()

# nevo_places(SOURCE...)
# Tells the sources that ask for it where the project lies; the others stay the same in every checkout, for the
# compiler's cache.
function(nevo_places)
  foreach(source ${ARGN})
    file(STRINGS ${source} asks REGEX "NEVO_SOURCE_DIR|ResourceFiles.h" LIMIT_COUNT 1)
    if(asks)
      set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS NEVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    endif()
  endforeach()
endfunction()

# nevo_test(NAME DIR dir LINKS lib...)
# One GoogleTest program of all .cpp files below DIR; each of its tests is a test of ctest.
function(nevo_test name)
  cmake_parse_arguments(ARG "" "DIR" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} GTest::gmock GTest::gtest_main)
  # The test framework's headers take longer to compile than most tests.
  target_precompile_headers(${name} PRIVATE <gtest/gtest.h> <gmock/gmock.h> <functional> <memory> <string> <vector>)
  nevo_places(${sources})
  gtest_discover_tests(${name} TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
endfunction()
