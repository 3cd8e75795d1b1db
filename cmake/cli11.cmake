# CLI11, the library of command-line options: headers alone. The cross compiler must not see the other
# headers in their folder, so it is given a folder of its own with a copy of them.
find_path(CLI11_FOLDER CLI/CLI.hpp PATHS /usr/include /usr/local/include REQUIRED
          NO_CMAKE_FIND_ROOT_PATH)
file(COPY ${CLI11_FOLDER}/CLI DESTINATION ${CMAKE_BINARY_DIR}/cli11)
add_library(cli11 INTERFACE)
target_include_directories(cli11 SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/cli11)
# Its checks of paths would bring in the standard library's files and folders, which we do not use.
target_compile_definitions(cli11 INTERFACE CLI11_HAS_FILESYSTEM=0)
