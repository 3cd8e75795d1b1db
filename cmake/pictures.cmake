# Turns the drawings of src/app/pictures into the icons and the start-up picture of the program.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
find_program(IMAGEMAGICK_CONVERT convert REQUIRED)

set(drawings ${CMAKE_SOURCE_DIR}/src/app/pictures)
set(pictures ${CMAKE_BINARY_DIR}/pictures)
file(MAKE_DIRECTORY ${pictures})

# scorvane_icon(NAME DRAWING SIZE...): pictures/NAME.ico with the drawing in the sizes given, large ones
# compressed.
function(scorvane_icon name drawing)
  set(images)
  set(parts)
  foreach(size ${ARGN})
    set(image ${pictures}/${name}_${size}.png)
    add_custom_command(
      OUTPUT ${image} DEPENDS ${drawings}/${drawing}
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${image} ${drawings}/${drawing})
    list(APPEND images ${image})
    if(size GREATER_EQUAL 256)
      list(APPEND parts --raw=${image})
    else()
      list(APPEND parts ${image})
    endif()
  endforeach()
  add_custom_command(OUTPUT ${pictures}/${name}.ico DEPENDS ${images}
                     COMMAND ${ICOTOOL} -c -o ${pictures}/${name}.ico ${parts})
endfunction()

scorvane_icon(scorvane icon.svg 16 20 24 32 40 48 64 128 256)
scorvane_icon(scorvane_small icon_small.svg 16 20 24 32)

# scorvane_picture(NAME WIDTH HEIGHT COMPRESSION): pictures/NAME.bmp with the start-up picture in this size.
function(scorvane_picture name width height compression)
  add_custom_command(
    OUTPUT ${pictures}/${name}.bmp DEPENDS ${drawings}/welcome.svg
    COMMAND ${RSVG_CONVERT} -w ${width} -h ${height} -o ${pictures}/${name}.png
            ${drawings}/welcome.svg
    COMMAND ${IMAGEMAGICK_CONVERT} ${pictures}/${name}.png -alpha off +dither -colors 256 -type
            palette -compress ${compression} BMP3:${pictures}/${name}.bmp)
endfunction()

# For displays of 96 dots per inch, and for denser ones; this one would be most of the program's size.
scorvane_picture(welcome 640 400 none)
scorvane_picture(welcome_dense 1280 800 RLE)

set(scorvane_pictures
    ${pictures}/scorvane.ico ${pictures}/scorvane_small.ico ${pictures}/welcome.bmp
    ${pictures}/welcome_dense.bmp)
