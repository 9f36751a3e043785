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
  # GCC 12 takes appending to a std::string for an overlapping copy or one out of bounds, in precompiled headers above all.
  target_compile_options(nimbrel_flags INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds -Wno-stringop-overread)
endif()
if(NIMBREL_SANITIZE)
  # Of a test's own code the address sanitizer alone sees to: the other one takes a third of its compile time.
  target_compile_options(nimbrel_flags INTERFACE
    -fsanitize=${NIMBREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    $<$<BOOL:$<TARGET_PROPERTY:NIMBREL_IS_TEST>>:-fno-sanitize=undefined>)
  target_link_options(nimbrel_flags INTERFACE -fsanitize=${NIMBREL_SANITIZE})
else()
  # What is shipped makes attacks on memory faults harder: checked buffers and copies, no writable tables of calls.
  target_compile_options(nimbrel_flags INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
  target_link_options(nimbrel_flags INTERFACE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
endif()

# nimbrel_library(NAME SOURCES ... LINKS ... PRECOMPILE ...): one folder of src as a target. Its headers stand in
# include/FOLDER, and it sees only those of the targets that it links, which must have been added before it.
# Without PRECOMPILE it shares the precompiled headers of nimbrel_text, or with Qt those of nimbrel_desktop.
function(nimbrel_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS;PRECOMPILE" ${ARGN})
  foreach(link ${arg_LINKS})
    if(link MATCHES "^nimbrel_" AND NOT TARGET ${link})
      message(FATAL_ERROR "${name} links ${link}, which is added after it")
    endif()
  endforeach()
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC include)
  target_link_libraries(${name} PUBLIC nimbrel_flags ${arg_LINKS})
  if(arg_PRECOMPILE)
    target_precompile_headers(${name} PRIVATE ${arg_PRECOMPILE})
  elseif(nimbrel_desktop IN_LIST arg_LINKS)
    target_precompile_headers(${name} REUSE_FROM nimbrel_desktop)
  else()
    target_precompile_headers(${name} REUSE_FROM nimbrel_text)
  endif()
endfunction()
