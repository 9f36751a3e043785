# One interface target that all our code links: language, warnings and sanitizers.
add_library(nimbrel_flags INTERFACE)
target_compile_features(nimbrel_flags INTERFACE cxx_std_20)
target_compile_options(nimbrel_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror # a warning is a fault found early
  -Wconversion -Wsign-conversion   # bytes, singles and sizes meet everywhere; each narrowing is to be meant
  -Wshadow                         # a reused name hides what a loop over a table works on
  -Wold-style-cast                 # casts are to be found by their name
  -Wnon-virtual-dtor               # ports are owned through their base
  -Woverloaded-virtual             # a port's twin must override, not hide
)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 takes appending to a std::string for an overlapping copy.
  target_compile_options(nimbrel_flags INTERFACE -Wno-restrict)
endif()
if(NIMBREL_SANITIZE)
  target_compile_options(nimbrel_flags INTERFACE
    -fsanitize=${NIMBREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(nimbrel_flags INTERFACE -fsanitize=${NIMBREL_SANITIZE})
endif()

# nimbrel_library(NAME SOURCES ... LINKS ...): one folder of src as a target. Its headers stand in include/FOLDER, and it
# sees only those of the targets that it links, which src/CMakeLists.txt must have added before it.
function(nimbrel_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  foreach(link ${arg_LINKS})
    if(link MATCHES "^nimbrel_" AND NOT TARGET ${link})
      message(FATAL_ERROR "${name} links ${link}, which stands above it in src/CMakeLists.txt")
    endif()
  endforeach()
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC include)
  target_link_libraries(${name} PUBLIC nimbrel_flags ${arg_LINKS})
endfunction()
