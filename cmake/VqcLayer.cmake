# What every part of the program is compiled with.
option(CMAKE_COMPILE_WARNING_AS_ERROR "Let no warning pass" ON)
add_library(vqc_compile_options INTERFACE)
target_compile_options(vqc_compile_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)  # GCC 12 sees overlaps in "x" + string that are none

# Sanitizers and coverage reach every object, so that they are options of the whole build.
set(VQC_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")
if(VQC_SANITIZE)
  add_compile_options(-fsanitize=${VQC_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
                      $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)  # GCC sees ghosts in instrumented code
  add_link_options(-fsanitize=${VQC_SANITIZE})
endif()
option(VQC_FUZZ "Build the fuzz targets for libFuzzer, and everything so that it can see which code runs" OFF)
if(VQC_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
option(VQC_COVERAGE "Count which lines run" OFF)
if(VQC_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# vqc_layer(NAME DIR folder SOURCES files... HEADERS files... [BUILDS_ON layers...] [USES libraries...])
#
# One layer of the program as a static library of its own: it can call what it builds on and nothing else, since
# nothing else is linked with it. Each of its headers must compile alone.
function(vqc_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 LAYER "" "DIR" "SOURCES;HEADERS;BUILDS_ON;USES")
  list(TRANSFORM LAYER_SOURCES PREPEND ${LAYER_DIR}/)
  list(TRANSFORM LAYER_HEADERS PREPEND ${LAYER_DIR}/)
  add_library(${name} STATIC ${LAYER_SOURCES})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${LAYER_HEADERS})
  set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  target_link_libraries(${name} PUBLIC ${LAYER_BUILDS_ON} ${LAYER_USES} PRIVATE vqc_compile_options)
endfunction()
