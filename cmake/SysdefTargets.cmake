# SPDX-License-Identifier: GPL-3.0-or-later

# sysdef_sources(TARGET FOLDER...): the sources of these folders, one level each, belong to TARGET.
function(sysdef_sources target)
  foreach(folder IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.h
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.ui
      ${PROJECT_SOURCE_DIR}/src/${folder}/*.qrc)
    target_sources(${target} PRIVATE ${found})
  endforeach()
endfunction()

# sysdef_page_folders(VARIABLE): the folders of the subjects under src/pages.
function(sysdef_page_folders variable)
  file(GLOB found CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE ${PROJECT_SOURCE_DIR}/src
    ${PROJECT_SOURCE_DIR}/src/pages/*)
  set(${variable} ${found} PARENT_SCOPE)
endfunction()
