#!/bin/sh
# One test of CMakeLists.txt: run.sh SOURCE FUNCTION ARGUMENT...
set -eu
source=$1
function=$2
shift 2
here=$source/tests/consumers
design=$source/examples/designs/small.json
warnings="-Wall -Wextra -Wpedantic -Werror"

fail() {
  echo "$*" >&2
  exit 1
}

# install BUILD PREFIX: into another folder first, which is then moved.
install() {
  rm -rf "$2" "$2.first"
  cmake --install "$1" --prefix "$2.first"
  mv "$2.first" "$2"
}

install_static() {
  cmake -S "$source" -B "$1" -G Ninja -DBUILD_SHARED_LIBS=OFF -DSDKDEBUGDIALOG_TOOLS=OFF
  cmake --build "$1"
  install "$1" "$2"
  [ ! -e "$2"/lib/libSdkDebugDialog.so ] || fail "a shared library is installed"
}

tool() {
  "$1/bin/qvtcfg" --version
  "$1/bin/qvtcfg" --design "$design" processors | grep '^ovrin_0 '
}

# Exactly the public headers are installed, and each compiles by itself.
headers() {
  {
    (cd "$source/include" && find SdkDebugDialog -name '*.h')
    printf 'SdkDebugDialog/platform/%s.h\n' ComMsgMgr DesignFile HHSMHwManager
  } | sort >headers.expected
  (cd "$1/include" && find . -type f | sed 's/^\.\///') | sort >headers.installed
  diff headers.expected headers.installed || fail "other headers are installed"
  for compiler in g++ clang++; do
    while read -r header; do
      echo "#include <$header>" | tee one_header.cpp
      # shellcheck disable=SC2086 # a list of words
      $compiler -std=c++17 $warnings -Wshadow -Wconversion -fsyntax-only "-I$1/include" one_header.cpp
    done <headers.installed
  done
}

components() {
  mkdir -p "$2/source"
  # shellcheck disable=SC2016 # CMake's variables
  printf '%s\n' 'cmake_minimum_required(VERSION 3.16)' 'project(components LANGUAGES CXX)' \
    'find_package(SdkDebugDialog ${VERSION} CONFIG REQUIRED COMPONENTS ${COMPONENT})' >"$2/source/CMakeLists.txt"
  find_it() {
    rm -rf "$2/build"
    cmake -S "$2/source" -B "$2/build" -DCMAKE_PREFIX_PATH="$1" -DVERSION="$3" -DCOMPONENT="$4" 2>&1
  }
  find_it "$1" "$2" 1 DesignFile || fail "the component DesignFile is not found"
  find_it "$1" "$2" 1.0 '' || fail "version 1.0 is not found"
  ! find_it "$1" "$2" 1 Nonsense || fail "any component is found"
  ! find_it "$1" "$2" 2 '' || fail "any version is found"
}

# cmake PREFIX FOLDER COMPILER STANDARD [FLAG]: warnings in the installed headers count as well.
with_cmake() {
  rm -rf "$2"
  cmake -S "$here/project" -B "$2" -G Ninja -DCMAKE_CXX_COMPILER="$3" -DCMAKE_PREFIX_PATH="$1" \
    -DCMAKE_NO_SYSTEM_FROM_IMPORTED=ON -DCMAKE_CXX_STANDARD="$4" -DCMAKE_CXX_STANDARD_REQUIRED=ON -DCMAKE_CXX_FLAGS="${5-}" -DDESIGN="$design"
  cmake --build "$2"
  ctest --test-dir "$2" --output-on-failure --no-tests=error
}

# pkg_config PREFIX FOLDER COMPILER STANDARD
pkg_config() {
  rm -rf "$2"
  mkdir -p "$2"
  export PKG_CONFIG_PATH="$1/lib/pkgconfig" LD_LIBRARY_PATH="$1/lib"
  standard=$4
  [ "$standard" != 23 ] || standard=2b
  compile() {
    # pkg-config escapes blanks as the shell does.
    eval "$1 -std=c++$standard $warnings -o '$3' '$here/project/$2.cpp' $(pkg-config --cflags --libs "$4")"
  }
  compile "$3" own_design "$2/own_design" SdkDebugDialog
  compile "$3" design_file "$2/design_file" SdkDebugDialogDesignFile
  [ "$(pkg-config --modversion SdkDebugDialog)" = "$(pkg-config --modversion SdkDebugDialogDesignFile)" ]
  "$2/own_design"
  [ "$("$2/design_file" "$design")" = "connect ov odm -debugdevice cpunr 1" ] || fail "another command"
}

# subproject FOLDER COMPILER WAY TARGETS [OPTION...]
subproject() {
  folder=$1 compiler=$2 way=$3 targets=$4
  shift 4
  rm -rf "$folder"
  cmake -S "$here/parent" -B "$folder/build" -G Ninja -DCMAKE_CXX_COMPILER="$compiler" -DSDKDEBUGDIALOG="$source" \
    -DWAY="$way" -DTARGETS="$targets" "$@"
  cmake --build "$folder/build"
  "$folder/build/own_design"
  cmake --install "$folder/build" --prefix "$folder/prefix"
  [ "$(cd "$folder/prefix" && find . -type f)" = ./bin/own_design ] || fail "the subproject is installed as well"
}

# Each link of an installed document leads to a file.
documents() {
  # shellcheck disable=SC2016 # backticks are those of Markdown
  find "$1/share/doc/SdkDebugDialog" -name '*.md' | while read -r document; do
    sed 's/`[^`]*`//g' "$document" | grep -o '](\([^)#:]*\)[#)]' | sed 's/^](//; s/[#)]$//' | while read -r link; do
      [ -z "$link" ] || [ -e "${document%/*}/$link" ] || echo "$document: $link leads nowhere"
    done
  done >dead_links
  [ -e "$1/share/doc/SdkDebugDialog/README.md" ] || fail "there is no README.md"
  [ ! -s dead_links ] || fail "$(cat dead_links)"
}

[ "$function" != cmake ] || function=with_cmake
"$function" "$@"
