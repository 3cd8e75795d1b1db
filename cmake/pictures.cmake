# Turns the drawings of src/app/pictures into the icons and the start-up picture of the program.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
find_program(IMAGEMAGICK_CONVERT convert REQUIRED)

set(drawings ${CMAKE_SOURCE_DIR}/src/app/pictures)
set(pictures ${CMAKE_BINARY_DIR}/pictures)
file(MAKE_DIRECTORY ${pictures})

# scorvane_icon(NAME DRAWING SIZE...): pictures/NAME.ico with the drawing in the sizes given.
function(scorvane_icon name drawing)
  set(images)
  foreach(size ${ARGN})
    set(image ${pictures}/${name}_${size}.png)
    add_custom_command(
      OUTPUT ${image} DEPENDS ${drawings}/${drawing}
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${image} ${drawings}/${drawing})
    list(APPEND images ${image})
  endforeach()
  add_custom_command(OUTPUT ${pictures}/${name}.ico DEPENDS ${images}
                     COMMAND ${ICOTOOL} -c -o ${pictures}/${name}.ico ${images})
endfunction()

scorvane_icon(scorvane icon.svg 16 20 24 32 40 48 64 128 256)
scorvane_icon(scorvane_small icon_small.svg 16 20 24 32)

# Twice the size it is shown at on a display of 96 dots per inch. Not every Windows draws compressed
# bitmaps.
add_custom_command(
  OUTPUT ${pictures}/welcome.bmp DEPENDS ${drawings}/welcome.svg
  COMMAND ${RSVG_CONVERT} -w 1280 -h 800 -o ${pictures}/welcome.png ${drawings}/welcome.svg
  COMMAND ${IMAGEMAGICK_CONVERT} ${pictures}/welcome.png -alpha off +dither -colors 256 -type
          palette -compress none BMP3:${pictures}/welcome.bmp)

set(scorvane_pictures ${pictures}/scorvane.ico ${pictures}/scorvane_small.ico
    ${pictures}/welcome.bmp)
