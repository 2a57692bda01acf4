# What every target of the project has in common, and how its libraries are made and installed.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# What is installed finds the libraries from where it lies, so that an installation may be moved as a whole. For
# a package in the system's own folders, configure with -DCMAKE_SKIP_INSTALL_RPATH=ON.
file(RELATIVE_PATH lib_from_bin "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN/${lib_from_bin}")

add_library(mrv_options INTERFACE)
target_compile_options(mrv_options INTERFACE -Wall -Wextra -Wshadow -Wsuggest-override -Werror)
target_compile_definitions(mrv_options INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH)
if(MRV_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "The fuzz targets need clang; configure with: cmake --preset fuzz")
  endif()
  # Some targets call a private piece of the library. What is instrumented is defined by the program.
  set(CMAKE_CXX_VISIBILITY_PRESET default)
  set(sanitizers -fsanitize=fuzzer-no-link,address,undefined)
  target_compile_options(mrv_options INTERFACE -include "${PROJECT_SOURCE_DIR}/fuzz/constantstrlen.h")
else()
  target_link_options(mrv_options INTERFACE -Wl,--no-undefined)
endif()
if(MRV_SANITIZE)
  set(sanitizers -fsanitize=address,undefined)
endif()
if(sanitizers)
  # Qt is built without type information for its private classes, so the vptr check cannot work.
  list(APPEND sanitizers -fno-sanitize=vptr -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_compile_options(mrv_options INTERFACE ${sanitizers})
  target_link_options(mrv_options INTERFACE ${sanitizers})
endif()

# Product code spells out every conversion between bytes and text; tests may be lax.
add_library(mrv_strict INTERFACE)
target_link_libraries(mrv_strict INTERFACE mrv_options)
target_compile_definitions(
  mrv_strict INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
                       QT_NO_URL_CAST_FROM_STRING)

# mrv_add_library(TARGET INCLUDE_ROOT dir HEADER_DIR name SOURCES files...)
#
# Adds shared library TARGET (and the alias MrvBase::TARGET) with SONAME version 1, and installs it together
# with its public headers: every header among SOURCES that does not end in _p.h, under
# include/HEADER_DIR, at its place below INCLUDE_ROOT. The global property MRV_PUBLIC_HEADERS lists them for what reads
# their comments.
function(mrv_add_library target)
  cmake_parse_arguments(ARG "" "INCLUDE_ROOT;HEADER_DIR" "SOURCES" ${ARGN})
  add_library(${target} SHARED ${ARG_SOURCES})
  add_library(MrvBase::${target} ALIAS ${target})
  string(TOUPPER ${target} upper)
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                             INSTALL_RPATH "$ORIGIN")
  target_compile_definitions(${target} PRIVATE ${upper}_BUILD)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:mrv_strict>)
  target_include_directories(
    ${target} PUBLIC $<BUILD_INTERFACE:${ARG_INCLUDE_ROOT}>
                     $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${ARG_HEADER_DIR}>)
  install(
    TARGETS ${target}
    EXPORT MrvBaseTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  foreach(file IN LISTS ARG_SOURCES)
    if(file MATCHES "\\.h$" AND NOT file MATCHES "_p\\.h$")
      file(RELATIVE_PATH place "${ARG_INCLUDE_ROOT}" "${file}")
      get_filename_component(folder "${place}" DIRECTORY)
      install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${ARG_HEADER_DIR}/${folder}")
      set_property(GLOBAL APPEND PROPERTY MRV_PUBLIC_HEADERS "${file}")
    endif()
  endforeach()
endfunction()
