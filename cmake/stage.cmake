# What runs is staged into build/bin, laid out as on a user's machine.
set(NIMBREL_STAGE ${CMAKE_BINARY_DIR}/bin)
