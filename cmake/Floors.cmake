# How a folder becomes a library, and what keeps an upper folder out of a lower one.

add_library(tessarin_flags INTERFACE)
target_compile_options(tessarin_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast -Wcast-align -Wduplicated-cond -Werror
  # GCC 12 sees overlaps in std::string's operator+ that are not there.
  -Wno-restrict
  # A position on an axis must be the same to the last bit wherever it is worked out.
  -ffp-contract=off)
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  target_compile_definitions(tessarin_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(TESSARIN_SANITIZE)
  target_compile_options(tessarin_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    # It sees ghosts in instrumented code.
    -Wno-maybe-uninitialized)
  target_link_options(tessarin_flags INTERFACE -fsanitize=address,undefined)
endif()

# tessarin_floor(NAME FOLDER folder SOURCES ... LINKS ...)
#
# Makes the library Tessarin::NAME from the files of the current folder. Its headers are included
# as "FOLDER/Header.h" and can be seen only by targets that link it: each floor has an include
# root of its own that holds nothing but a link to its folder, so an include of a floor that is
# not linked finds no file. With TESSARIN_ALONE each header is also compiled alone.
function(tessarin_floor NAME)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;LINKS" ${ARGN})
  file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
    "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  set(root "${PROJECT_BINARY_DIR}/floors/${NAME}")
  get_filename_component(parent "${root}/${ARG_FOLDER}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  if(NOT EXISTS "${root}/${ARG_FOLDER}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${root}/${ARG_FOLDER}" SYMBOLIC)
  endif()

  set(alone "")
  if(NOT TESSARIN_ALONE AND ARG_SOURCES)
    set(headers "")
  endif()
  foreach(header ${headers})
    set(unit "${CMAKE_CURRENT_BINARY_DIR}/alone/${header}.cpp")
    file(CONFIGURE OUTPUT "${unit}" CONTENT "#include \"${ARG_FOLDER}/${header}\"\n")
    list(APPEND alone "${unit}")
  endforeach()

  add_library(tessarin_${NAME} STATIC ${ARG_SOURCES} ${alone})
  add_library(Tessarin::${NAME} ALIAS tessarin_${NAME})
  target_include_directories(tessarin_${NAME} PUBLIC "${root}")
  target_link_libraries(tessarin_${NAME} PUBLIC tessarin_flags ${ARG_LINKS})
endfunction()
