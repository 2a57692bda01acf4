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

# What is installed finds the libraries from where it lies, so that an installation may be moved as a whole.
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
if(MRV_COVERAGE)
  # Tests are not counted, but link what is.
  target_compile_options(mrv_strict INTERFACE --coverage -fprofile-abs-path)
  target_link_options(mrv_options INTERFACE --coverage)
endif()
target_link_libraries(mrv_strict INTERFACE mrv_options)
# What is shipped ends where memory is overwritten, instead of going on with it. The sanitizers look closer, and tests are
# not shipped. -fcf-protection is left out: Debian 12 has no start-up code for it, so the linker takes its mark away.
if(NOT MRV_SANITIZE AND NOT MRV_COVERAGE AND NOT MRV_BUILD_FUZZERS)
  set(optimized $<CONFIG:Release,RelWithDebInfo>)
  include(CheckCXXCompilerFlag)
  foreach(name IN ITEMS stack-protector-strong stack-clash-protection)
    # Not every processor has them both.
    check_cxx_compiler_flag(-f${name} MRV_HAS_${name})
    if(MRV_HAS_${name})
      target_compile_options(mrv_strict INTERFACE $<${optimized}:-f${name}>)
    endif()
  endforeach()
  # Undefined first: who builds may have set it to another level.
  target_compile_options(mrv_strict INTERFACE "$<${optimized}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  target_link_options(mrv_options INTERFACE $<${optimized}:-Wl,-z,relro,-z,now>)
endif()
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
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
  foreach(file IN LISTS ARG_SOURCES)
    if(file MATCHES "\\.h$" AND NOT file MATCHES "_p\\.h$")
      file(RELATIVE_PATH place "${ARG_INCLUDE_ROOT}" "${file}")
      get_filename_component(folder "${place}" DIRECTORY)
      install(
        FILES "${file}"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${ARG_HEADER_DIR}/${folder}"
        COMPONENT development)
      set_property(GLOBAL APPEND PROPERTY MRV_PUBLIC_HEADERS "${file}")
    endif()
  endforeach()
endfunction()

# How lupdate takes the texts of sources over into translations. New ones come in as unfinished; what the sources no longer
# have goes. In English only texts that hold a count need one.
set(MRV_LUPDATE_OPTIONS -silent -no-obsolete -locations none -no-ui-lines -source-language en)

# mrv_compile_translations(NAME prefix files...): makes a list of Qt resources below prefix, NAME.qrc, which no other list of a
# program may be called. It holds the translations (*.ts). Sets translations_qrc to its path, and translation_files to what
# is made of them.
function(mrv_compile_translations list prefix)
  qt5_add_translation(files ${ARGN} OPTIONS -silent)
  foreach(file IN LISTS files)
    cmake_path(GET file FILENAME name)
    string(APPEND rows "        <file>${name}</file>\n")
  endforeach()
  set(qrc "${CMAKE_CURRENT_BINARY_DIR}/${list}.qrc")
  file(CONFIGURE OUTPUT "${qrc}" CONTENT "<RCC>\n    <qresource prefix=\"${prefix}\">\n${rows}    </qresource>\n</RCC>\n")
  set(translations_qrc "${qrc}" PARENT_SCOPE)
  set(translation_files "${files}" PARENT_SCOPE)
endfunction()

# mrv_update_translations(TARGET FILES files... FOLDERS folders...): TARGET takes the texts of the sources in the folders
# over into translations, whose names end with "_CODE.ts".
function(mrv_update_translations target)
  cmake_parse_arguments(ARG "" "" "FILES;FOLDERS" ${ARGN})
  add_custom_target(${target})
  foreach(file IN LISTS ARG_FILES)
    string(REGEX REPLACE ".*_(.*)\\.ts$" "\\1" language "${file}")
    set(only)
    if(language STREQUAL "en")
      set(only -pluralonly)
    endif()
    add_custom_command(
      TARGET ${target}
      COMMAND Qt5::lupdate ${MRV_LUPDATE_OPTIONS} ${only} -target-language ${language} ${ARG_FOLDERS} -ts "${file}"
      WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
      VERBATIM)
  endforeach()
endfunction()
