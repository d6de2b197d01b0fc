# Shared build conventions: warnings, sanitizers, component libraries, tests.

# -Wformat=2: every printf-style format is a literal the compiler checks, so
# no text from a client can ever be taken as a format.
set(VEX_WARNINGS -Wall -Wextra -Wformat=2 -Werror)

if(VEX_SANITIZE STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
elseif(VEX_SANITIZE STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
elseif(NOT VEX_SANITIZE STREQUAL "")
  message(FATAL_ERROR "VEX_SANITIZE must be empty, 'address' or 'thread'")
endif()

find_program(VEX_CCACHE ccache)
if(VEX_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${VEX_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${VEX_CCACHE})
endif()

# Every component of the provider is an OBJECT library; src/CMakeLists.txt links
# them all into libvexRAIDProvider15.so and unit tests link the ones they need.
function(vex_component name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPS;INCLUDES" ${ARGN})
  add_library(${name} OBJECT ${ARG_SOURCES})
  target_compile_options(${name} PRIVATE ${VEX_WARNINGS})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${ARG_INCLUDES})
  if(ARG_DEPS)
    target_link_libraries(${name} PUBLIC ${ARG_DEPS})
  endif()
  set_property(GLOBAL APPEND PROPERTY VEX_PROVIDER_COMPONENTS ${name})
endfunction()

# Links every component (but the EXCLUDEd ones) into a provider shared
# object with the provider's exports; libSTORVEX is found next to it.
function(vex_link_provider target)
  cmake_parse_arguments(ARG "" "" "EXCLUDE" ${ARGN})
  get_property(components GLOBAL PROPERTY VEX_PROVIDER_COMPONENTS)
  if(ARG_EXCLUDE)
    list(REMOVE_ITEM components ${ARG_EXCLUDE})
  endif()
  foreach(c ${components})
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${c}>)
    get_target_property(deps ${c} INTERFACE_LINK_LIBRARIES)
    if(deps)
      target_link_libraries(${target} PRIVATE ${deps})
    endif()
  endforeach()
  target_link_libraries(${target} PRIVATE Threads::Threads ${CMAKE_DL_LIBS})
  target_link_options(${target} PRIVATE -Wl,--no-undefined
    -Wl,--version-script=${PROJECT_SOURCE_DIR}/src/exports.map)
  set_target_properties(${target} PROPERTIES
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/src/exports.map
    BUILD_RPATH "$ORIGIN" INSTALL_RPATH "$ORIGIN")
endfunction()

# One GoogleTest executable; tests are discovered when ctest runs. The RAID
# event monitor of the providers the tests start keeps its files in the
# build tree, not in /var/log.
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/nrm)
function(vex_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_compile_options(${name} PRIVATE ${VEX_WARNINGS})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gmock GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
    PROPERTIES ENVIRONMENT "VEX_BUILD_DIR=${PROJECT_BINARY_DIR};VEX_NRM_DIR=${PROJECT_BINARY_DIR}/nrm")
endfunction()

# Adds every direct child folder of DIR that has a CMakeLists.txt, in name order.
function(vex_add_subdirs dir)
  file(GLOB children LIST_DIRECTORIES true RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}/${dir}
       ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*)
  list(SORT children)
  foreach(child ${children})
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/${child}/CMakeLists.txt)
      add_subdirectory(${dir}/${child})
    endif()
  endforeach()
endfunction()

function(vex_add_subdirs_if_exists dir)
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/CMakeLists.txt)
    add_subdirectory(${dir})
  endif()
endfunction()
