# What ships: the manual beside the program, and the target "package", which makes
# ScorvaneSetup.exe and Scorvane-VERSION.zip with the same files.
set(manual_name ScorvaneUsersManual)
set(manual_source ${CMAKE_SOURCE_DIR}/docs/manual)
file(GLOB_RECURSE manual_files CONFIGURE_DEPENDS ${manual_source}/${manual_name}*)

# Help opens the manual from the program's own folder, in the build folder, too.
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/${manual_name}.htm
  DEPENDS ${manual_files}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/${manual_name}_files
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${manual_source}/${manual_name}_files
          ${CMAKE_BINARY_DIR}/${manual_name}_files
  COMMAND ${CMAKE_COMMAND} -E copy ${manual_source}/${manual_name}.htm ${CMAKE_BINARY_DIR})
add_custom_target(manual ALL DEPENDS ${CMAKE_BINARY_DIR}/${manual_name}.htm)

set(samples ${CMAKE_SOURCE_DIR}/samples)
set(sample_files ${samples}/county.scv ${samples}/district.scv ${samples}/state.scv ${samples}/roster.csv)
set(setup ${CMAKE_BINARY_DIR}/ScorvaneSetup.exe)
set(zip ${CMAKE_BINARY_DIR}/Scorvane-${PROJECT_VERSION}.zip)
set(package ${CMAKE_BINARY_DIR}/package)
set(stage ${package}/Scorvane)

# With the licence of the option library that the console programs contain. Notepad of older Windows shows
# a text without CRs as one line.
file(READ LICENSE licence)
file(READ /usr/share/doc/libcli11-dev/copyright option_library_licence)
set(licence_file "${CMAKE_BINARY_DIR}/Scorvane License.txt")
file(CONFIGURE OUTPUT ${licence_file} NEWLINE_STYLE DOS
     CONTENT "${licence}\n\nscorvane-report and scorvane-contest contain the option library CLI11:\n\n${option_library_licence}" @ONLY)

add_custom_command(
  OUTPUT ${zip}
  DEPENDS scorvane ${console_programs} manual ${CMAKE_BINARY_DIR}/${manual_name}.htm ${sample_files}
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${stage} ${zip}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${stage}/samples
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:scorvane> $<TARGET_FILE:scorvane-report>
          $<TARGET_FILE:scorvane-contest> ${licence_file} ${CMAKE_BINARY_DIR}/${manual_name}.htm ${stage}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_BINARY_DIR}/${manual_name}_files
          ${stage}/${manual_name}_files
  COMMAND ${CMAKE_COMMAND} -E copy ${sample_files} ${stage}/samples
  COMMAND ${CMAKE_COMMAND} -E chdir ${package} ${CMAKE_COMMAND} -E tar cf ${zip} --format=zip
          Scorvane
  VERBATIM)

# What an upgrade and the uninstaller delete of the manual, file by file. A picture that goes out of the
# manual stays in this list, beside the others: earlier versions have put it there.
set(deletions "!macro DeleteManualFiles folder\n")
file(GLOB manual_pictures CONFIGURE_DEPENDS ${manual_source}/${manual_name}_files/*)
foreach(file IN LISTS manual_pictures)
  get_filename_component(name ${file} NAME)
  string(APPEND deletions "  Delete \"\${folder}\\${name}\"\n")
endforeach()
string(APPEND deletions "!macroend\n")
file(WRITE ${CMAKE_BINARY_DIR}/manual_files.nsh "${deletions}")

# The side of Setup's last page: the left part of the start-up picture, for dense displays, too.
set(setup_side ${pictures}/setup_side.bmp)
add_custom_command(
  OUTPUT ${setup_side} DEPENDS ${pictures}/welcome_dense.bmp
  COMMAND ${IMAGEMAGICK_CONVERT} ${pictures}/welcome_dense.bmp -resize x628 -gravity West
          -crop 328x628+20+0 +repage -type truecolor BMP3:${setup_side})

# Not part of "all": running the program needs no NSIS.
add_custom_command(
  OUTPUT ${setup}
  DEPENDS ${zip} ${setup_side} ${CMAKE_SOURCE_DIR}/packaging/scorvane.nsi
          ${CMAKE_SOURCE_DIR}/packaging/path.nsh
  COMMAND
    makensis -V2 -WX -DVERSION=${PROJECT_VERSION} -DSTAGE=${stage} -DSAMPLES=${samples}
    -DICON=${pictures}/scorvane.ico -DSIDE=${setup_side}
    -DMANUAL_FILES=${CMAKE_BINARY_DIR}/manual_files.nsh -DOUTPUT=${setup}
    ${CMAKE_SOURCE_DIR}/packaging/scorvane.nsi
  VERBATIM)
add_custom_target(package DEPENDS ${setup} ${zip})
