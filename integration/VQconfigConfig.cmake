# Makes C from descriptions of widget sets, in any CMake project:
#
#   find_package(VQconfig REQUIRED)
#   vqconfig_generate(TARGET dial DOCUMENT dial.vqc STUBS dial_stubs.c)
#
# VQCONFIG_VQC is the program vqc.

get_filename_component(_vqconfig_prefix ${CMAKE_CURRENT_LIST_DIR}/../../.. ABSOLUTE)
find_program(VQCONFIG_VQC vqc HINTS ${_vqconfig_prefix}/bin DOC "The program that checks descriptions, and generates from them")
if(NOT VQCONFIG_VQC)
  set(VQconfig_FOUND FALSE)
  set(VQconfig_NOT_FOUND_MESSAGE "The program vqc is not there.")
  return()
endif()

# vqconfig_generate(TARGET target DOCUMENT document
#                   [FAMILIES families...] [STUBS file] [OPTIONS options...] [HEADERS patterns...])
#
# Compiles into the target what is generated from the document: all files or none, and none while the document has an
# error. vqc runs in the source folder; the files go to the binary folder. STUBS names a file of the source folder that
# gets what is new and keeps what was written by hand; without it, there are no stubs. OPTIONS go to vqc generate. The
# document is read again when a header that matches one of the patterns (*.h without HEADERS) appears or is gone.
function(vqconfig_generate)
  cmake_parse_arguments(PARSE_ARGV 0 ARG "" "TARGET;DOCUMENT;STUBS" "FAMILIES;OPTIONS;HEADERS")
  if(ARG_UNPARSED_ARGUMENTS OR NOT ARG_TARGET OR NOT ARG_DOCUMENT)
    message(FATAL_ERROR "vqconfig_generate needs a TARGET and a DOCUMENT. Not known: '${ARG_UNPARSED_ARGUMENTS}'.")
  endif()
  get_filename_component(document ${ARG_DOCUMENT} ABSOLUTE)
  get_filename_component(name ${ARG_DOCUMENT} NAME_WLE)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${name})
  set(sources ${made}_config.c ${made}_code.c)
  set(stamps ${made}.vqc-stamp)
  set(options ${ARG_OPTIONS})
  if(ARG_FAMILIES)
    list(JOIN ARG_FAMILIES "," families)
    list(APPEND options --families ${families})
  endif()
  if(ARG_STUBS)
    get_filename_component(stubs ${ARG_STUBS} ABSOLUTE)
    _vqconfig_copy_stubs(${stubs} ${made}_stubs.c ${made}.vqc-stamp)
    list(APPEND sources ${made}_stubs.c)
    list(APPEND stamps ${made}_stubs.c-stamp)
    list(APPEND options --stubs ${stubs})
  else()
    list(APPEND options --no-stubs)
  endif()
  _vqconfig_list_headers(${made}.vqc-headers ${ARG_HEADERS})
  _vqconfig_run(${document} ${made} ${options})
  set_source_files_properties(${sources} PROPERTIES GENERATED TRUE)
  target_sources(${ARG_TARGET} PRIVATE ${sources})
  add_custom_target(${ARG_TARGET}-${name}-vqconfig DEPENDS ${stamps})
  add_dependencies(${ARG_TARGET} ${ARG_TARGET}-${name}-vqconfig)
endfunction()

# Files that would not change keep their time, and so are older than a document that was touched. The stamp tells when they
# were last found right.
function(_vqconfig_run document made)
  add_custom_command(OUTPUT ${made}.vqc-stamp
    BYPRODUCTS ${made}_config.c ${made}_code.c
    COMMAND ${VQCONFIG_VQC} generate --config ${made}_config.c --code ${made}_code.c ${ARGN} ${document}
    COMMAND ${CMAKE_COMMAND} -E touch ${made}.vqc-stamp
    DEPENDS ${document} ${made}.vqc-headers ${VQCONFIG_VQC}
    WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}
    COMMENT "Generating from ${document}"
    VERBATIM)
endfunction()

# A build tool deletes in a clean what one of its rules makes. So no rule makes the stubs file: it is there from the start,
# and a copy is compiled, which has what vqc has just added.
function(_vqconfig_copy_stubs stubs copy stamp)
  if(NOT EXISTS ${stubs})
    file(TOUCH ${stubs})
    file(REMOVE ${stamp})
  endif()
  file(GLOB there CONFIGURE_DEPENDS ${stubs})  # else comes here again
  add_custom_command(OUTPUT ${copy}-stamp
    BYPRODUCTS ${copy}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${stubs} ${copy}
    COMMAND ${CMAKE_COMMAND} -E touch ${copy}-stamp
    DEPENDS ${stubs} ${stamp}
    COMMENT ""
    VERBATIM)
endfunction()

# Keeps a list of the headers that are there, in a file that is only written when they change.
function(_vqconfig_list_headers list)
  set(patterns ${ARGN})
  if(NOT patterns)
    set(patterns *.h)
  endif()
  list(TRANSFORM patterns PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  file(GLOB headers CONFIGURE_DEPENDS ${patterns})
  file(CONFIGURE OUTPUT ${list} CONTENT "${headers}\n" @ONLY)
endfunction()
