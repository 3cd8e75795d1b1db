# scorvane_late_dll(ROOM DLL FUNCTION...): has the room's programs load DLL when one of these functions is
# first called. A system DLL that only some commands need would otherwise hold up every start.
function(scorvane_late_dll room dll)
  set(definition ${CMAKE_BINARY_DIR}/late_${dll}.def)
  set(library ${CMAKE_BINARY_DIR}/liblate_${dll}.a)
  list(JOIN ARGN "\n" functions)
  file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${dll}.dll\nEXPORTS\n${functions}\n" @ONLY)
  add_custom_command(
    OUTPUT ${library} DEPENDS ${definition}
    COMMAND ${CMAKE_DLLTOOL} --input-def ${definition} --output-delaylib ${library})
  add_custom_target(late_${dll} DEPENDS ${library})
  add_dependencies(${room} late_${dll})
  target_link_libraries(${room} PUBLIC ${library})
endfunction()
