# Pages that the build makes, mostly with the program itself: linked samples, live examples, and the help.

# The inputs of a compile besides the menu.
set(compiler nbrc runtime ${NIMBREL_STAGE}/libraries/nbrlib1.js ${NIMBREL_STAGE}/dot.gif)

# nimbrel_stage_pages(FOLDER [SCRIPT.js PAGE...]...): compiles the menus of a sample and links its pages to them.
# FOLDER.nbr becomes menu.js, any other NAME.nbr becomes NAME.js. Each script is linked to all pages, or to the pages named
# after it. Pages are copied first each time, because linking a page again adds a line to it.
function(nimbrel_stage_pages folder)
  set(to ${NIMBREL_STAGE}/Examples/${folder})
  file(GLOB pages CONFIGURE_DEPENDS Examples/${folder}/*.html)
  list(TRANSFORM pages REPLACE ".*/" "" OUTPUT_VARIABLE names)
  set(commands COMMAND ${CMAKE_COMMAND} -E copy ${pages} ${to})
  set(links ${ARGN})
  file(GLOB menus CONFIGURE_DEPENDS Examples/${folder}/*.nbr)
  foreach(menu ${menus})
    get_filename_component(name ${menu} NAME_WE)
    string(REGEX REPLACE "^${folder}$" menu script ${name})
    list(APPEND commands COMMAND nbrc compile ${to}/${name}.nbr --to ${to}/${script}.js
      > ${CMAKE_CURRENT_BINARY_DIR}/${folder}-${name}.txt)
    if(NOT ARGN)
      list(APPEND links ${script}.js ${names})
    endif()
  endforeach()
  foreach(word ${links})
    if(word MATCHES "\\.js$")
      set(script ${word})
    else()
      list(APPEND commands COMMAND nbrc link ${to}/${script} ${to}/${word})
    endif()
  endforeach()
  set(needed ${staged})
  list(FILTER needed INCLUDE REGEX "/Examples/${folder}/")
  add_custom_command(OUTPUT ${to}/menu.js ${commands} DEPENDS ${pages} ${needed} ${compiler}
    COMMENT "Sample ${folder}" VERBATIM)
  set(staged ${staged} ${to}/menu.js PARENT_SCOPE)
endfunction()

foreach(folder corvane fennimore lindenbrook marlock pellworth quillfeather tamsin thistlewick)
  nimbrel_stage_pages(${folder})
endforeach()
# The main menu and its submenus are in different frames.
nimbrel_stage_pages(brasswick menu.js nav.html menu_sub.js first-week.html hours.html safety.html welcome.html)

# The preview of a style needs its libraries and path image in the gallery.
set(marker ${NIMBREL_STAGE}/gallery/nbrmenupath.gif)
add_custom_command(OUTPUT ${marker}
  COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/dot.gif ${marker} DEPENDS dot.gif VERBATIM)
list(APPEND staged ${marker})
foreach(number RANGE 5)
  set(library ${NIMBREL_STAGE}/gallery/nbrData/nbrlib${number}.js)
  add_custom_command(OUTPUT ${library}
    COMMAND ${CMAKE_COMMAND} -E copy ${NIMBREL_STAGE}/libraries/nbrlib${number}.js ${library}
    DEPENDS runtime ${NIMBREL_STAGE}/libraries/nbrlib${number}.js VERBATIM)
  list(APPEND staged ${library})
endforeach()

file(GLOB gallery_sources CONFIGURE_DEPENDS gallery/*)
set(styles_made ${CMAKE_CURRENT_BINARY_DIR}/styles.stamp)
add_custom_command(OUTPUT ${styles_made}
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/gallery/make_styles.py --nbrc $<TARGET_FILE:nbrc> --rsvg-convert ${RSVG_CONVERT}
          --home ${NIMBREL_STAGE} ${CMAKE_CURRENT_BINARY_DIR}/styles
  COMMAND ${CMAKE_COMMAND} -E touch ${styles_made}
  DEPENDS ${gallery_sources} ${compiler} COMMENT "Styles" VERBATIM)
list(APPEND staged ${styles_made})

file(GLOB_RECURSE example_sources CONFIGURE_DEPENDS "Live Examples/*")
set(examples_made ${CMAKE_CURRENT_BINARY_DIR}/live-examples.stamp)
add_custom_command(OUTPUT ${examples_made}
  COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/Live Examples/make_live_examples.py" --nbrc $<TARGET_FILE:nbrc>
          --rsvg-convert ${RSVG_CONVERT} "${NIMBREL_STAGE}/Live Examples"
  COMMAND ${CMAKE_COMMAND} -E touch ${examples_made}
  DEPENDS ${example_sources} ${compiler} COMMENT "Live examples" VERBATIM)
set(staged ${staged} ${examples_made})

# The help, as HTML pages and as the compiled file for the help window.
find_program(QHELPGENERATOR qhelpgenerator PATHS /usr/lib/qt6/libexec NO_DEFAULT_PATH REQUIRED)
file(GLOB help_sources CONFIGURE_DEPENDS help/*.py help/*.css help/*.txt help/pages/*.md)
set(help_pages ${CMAKE_CURRENT_BINARY_DIR}/help)
set(help_file ${NIMBREL_STAGE}/nbrhelp.hlp)
set(shortcuts ${CMAKE_CURRENT_BINARY_DIR}/shortcuts.txt)
add_executable(list_shortcuts help/list_shortcuts.cpp)
target_link_libraries(list_shortcuts PRIVATE nimbrel_shell)
add_custom_command(OUTPUT ${help_file}
  COMMAND list_shortcuts > ${shortcuts}
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/help/make_help.py ${help_pages} --shortcuts ${shortcuts} --qch ${help_file}
          --generator ${QHELPGENERATOR}
  DEPENDS ${help_sources} list_shortcuts VERBATIM)
set(staged ${staged} ${help_file})

install(FILES ${help_file} DESTINATION ${CMAKE_INSTALL_DATADIR}/nimbrel)
install(DIRECTORY "${NIMBREL_STAGE}/Live Examples" ${NIMBREL_STAGE}/gallery DESTINATION ${CMAKE_INSTALL_DATADIR}/nimbrel)
