# SPDX-License-Identifier: GPL-3.0-or-later

# sysdef_sources(TARGET FOLDER...): the sources of these folders, one level each, belong to TARGET.
function(sysdef_sources target)
  set(all)
  foreach(folder IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.h
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.ui
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.qrc)
    target_sources(${target} PRIVATE ${found})
    list(APPEND all ${found})
  endforeach()
  sysdef_renew_autogen(${target} "${all}")
endfunction()

# Qt's generators look again only when a file they know has changed, so that one which joins an
# existing build folder would be missed: a list of sources that is not the last one's sends them.
function(sysdef_renew_autogen target sources)
  set(memory ${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt)
  set(before)
  if(EXISTS ${memory})
    file(READ ${memory} before)
  endif()
  if(NOT before STREQUAL sources)
    file(WRITE ${memory} "${sources}")
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
  endif()
endfunction()

# sysdef_page_folders(VARIABLE): the folders of the subjects under src/pages.
function(sysdef_page_folders variable)
  file(GLOB found CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE ${PROJECT_SOURCE_DIR}/src
    ${PROJECT_SOURCE_DIR}/src/pages/*)
  set(${variable} ${found} PARENT_SCOPE)
endfunction()
