# Sourced by ./run and ./test: installs Debian packages that are missing, saying which.

RUN_PACKAGES="cmake ninja-build g++ g++-mingw-w64-x86-64-posix wine wine64 xvfb xdotool imagemagick
  librsvg2-bin icoutils fonts-liberation fonts-wine python3 libcli11-dev"
TEST_PACKAGES="$RUN_PACKAGES clang libclang-rt-dev clang-tidy clang-format llvm mold strace libgtest-dev libbenchmark-dev
  mawk git cups cups-client ghostscript poppler-utils nsis zip python3-openpyxl"

# install_missing PACKAGE...: does nothing when all are there.
install_missing() {
  local missing=() package as_root=()
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing: ${missing[*]}"
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures when needed and builds what is stale.
build() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || { echo "Configuring $preset"; cmake --preset "$preset" >/dev/null; }
  echo "Building $preset"
  if [ $# -gt 0 ]; then cmake --build "build/$preset" --target "$@"; else cmake --build "build/$preset"; fi
}
