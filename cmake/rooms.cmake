# Compiler settings shared by everything, and scorvane_room(), which declares one folder of src/.

add_library(scorvane_settings INTERFACE)
target_include_directories(scorvane_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(scorvane_settings INTERFACE SCORVANE_VERSION="${PROJECT_VERSION}")
target_compile_options(
  scorvane_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
                              -Wformat=2 -Werror)
if(SCORVANE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(scorvane_settings INTERFACE ${sanitizers})
  target_compile_definitions(scorvane_settings INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(scorvane_settings INTERFACE ${sanitizers})
endif()
if(SCORVANE_FUZZ)
  # Lets the fuzzer see which branches its inputs reach.
  target_compile_options(scorvane_settings INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(scorvane_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(WIN32)
  # Compiled for size, an optional looks uninitialized to the compiler where it is not; the native
  # build watches for that.
  target_compile_options(scorvane_settings INTERFACE -Wno-maybe-uninitialized)
  # Statically linked: the program ships without a DLL of its own.
  target_link_options(scorvane_settings INTERFACE -static)
  target_compile_definitions(scorvane_settings INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX
                                                         __USE_MINGW_ANSI_STDIO=1)
endif()

# scorvane_room(NAME LOWER...): the library of src/NAME, which may use the rooms LOWER.
# Files named *_win32.cpp talk to Windows and are built for Windows only; *_posix.cpp elsewhere.
function(scorvane_room name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp
       ${CMAKE_SOURCE_DIR}/src/${name}/*.h)
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "_posix\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "_win32\\.(cpp|h)$")
  endif()
  list(FILTER sources EXCLUDE REGEX "(/|/contest_)main(_win32)?\\.cpp$")
  set(units ${sources})
  list(FILTER units INCLUDE REGEX "\\.cpp$")
  if(units)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC scorvane_settings ${ARGN})
    set_property(GLOBAL APPEND PROPERTY SCORVANE_ROOMS ${name})
    if(WIN32 OR SCORVANE_SANITIZE)
      # One unit a room builds in a third of the time. The native build still holds every file to what
      # it includes itself; what Windows' headers define must not reach other files.
      set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
      list(FILTER units INCLUDE REGEX "_win32\\.cpp$")
      set_source_files_properties(${units} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    endif()
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE scorvane_settings ${ARGN})
  endif()
endfunction()
