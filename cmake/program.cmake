# scorvane.exe: the program with its window.
enable_language(RC)
include(cmake/late_dlls.cmake)
include(cmake/pictures.cmake)
configure_file(cmake/version_info.rc.in ${CMAKE_BINARY_DIR}/version_info.rc @ONLY)

set(script ${CMAKE_SOURCE_DIR}/src/app/scorvane.rc)
file(GLOB resource_parts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*/*.rc
     ${CMAKE_SOURCE_DIR}/src/app/*.manifest)
list(REMOVE_ITEM resource_parts ${script})
set_source_files_properties(
  ${script} PROPERTIES OBJECT_DEPENDS
                       "${resource_parts};${scorvane_pictures};${CMAKE_BINARY_DIR}/version_info.rc")

add_executable(scorvane WIN32 src/app/main_win32.cpp ${script})
target_include_directories(scorvane PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_BINARY_DIR})
target_link_libraries(ui PUBLIC gdi32)
scorvane_late_dll(ui comctl32 DefSubclassProc SetWindowSubclass)
scorvane_late_dll(ui comdlg32 ChooseFontA GetOpenFileNameW GetSaveFileNameW PrintDlgA)
scorvane_late_dll(ui shell32 DragFinish DragQueryFileW SHGetFolderPathW ShellExecuteExW)
scorvane_late_dll(ui shlwapi AssocQueryStringW)
target_link_libraries(scorvane PRIVATE app)
target_link_options(scorvane PRIVATE -s -municode)
set_target_properties(scorvane PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
target_link_options(scorvane-report PRIVATE -s)
