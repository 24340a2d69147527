# Language level, warnings and sanitizers, each as one interface target; and zav_bibliothek(), which
# gives every folder under src/ a static library of its own name.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(ZAV_SANITIZER "Build with address and undefined-behaviour sanitizers" OFF)

add_library(warnungen INTERFACE)
target_compile_options(warnungen INTERFACE
  -Wall -Wextra -Wpedantic $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local> -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Werror
  # GCC 12 (bug 105651) sees an overlap in every inlined "literal" + std::string when it optimises; there is none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

add_library(pruefer INTERFACE)
if(ZAV_SANITIZER)
  target_compile_options(pruefer INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(pruefer INTERFACE -fsanitize=address,undefined)
endif()
if(ZAV_FUZZ)
  target_compile_options(pruefer INTERFACE -fsanitize=fuzzer-no-link)
endif()

# zav_bibliothek(NAME SOURCES ... LINKS ...): the static library of one folder. LINKS are the arrows of the
# architecture: a folder can include only what it links.
function(zav_bibliothek name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  add_library(zav::${name} ALIAS ${name})
  # Headers are included as "folder/header.h"; a private tree with one link per folder keeps an include
  # that has no arrow from compiling.
  set(baum ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${baum})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${baum}/${name} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${baum})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE warnungen pruefer)
endfunction()
