# shellcheck shell=sh disable=SC2154
# Sourced by scripts/test: its steps. step_NAME ends the script when something fails.

jobs=$(nproc 2>/dev/null || echo 2)

# packages_of STEP: what it needs.
packages_of() {
  echo "$build_packages git make libgtest-dev libgmock-dev librapidcheck-dev pkg-config strace \
    bash zsh fish mandoc groff-base man-db python3-jsonschema"
  case $1 in
    format) echo clang-format ;;
    lint | contrast)
      echo clang clang-tidy libclang-rt-14-dev
      echo libbenchmark-dev libboost-program-options-dev libcxxopts-dev rapidjson-dev
      echo "$dialog_packages"
      ;;
    dialog) echo "$dialog_packages $xvfb_packages" ;;
    fuzz) echo clang libclang-rt-14-dev ;;
    clang) echo clang ;;
    consumers) echo clang ;;
    locales) echo locales ;;
    docs) echo doxygen python3 ;;
    valgrind) echo valgrind ;;
    abi) echo abigail-tools binutils ;;
    packages) echo "$dialog_packages" build-essential debhelper debootstrap dpkg-dev lintian ;;
    arm64 | armhf | i386 | s390x)
      machine "$1"
      echo "g++-$triple" qemu-user
      ;;
  esac
}

# tree_state STEP: changes with every file of ours and with the compiler.
tree_state() {
  {
    git ls-files -z --cached --others --exclude-standard | xargs -0 sha256sum 2>&1
    g++ --version
    case $1 in
      lint | contrast | fuzz | clang | consumers) clang --version ;;
      abi) git tag --list 'v*' ;;
    esac
  } | sha256sum
}

# --- What steps are made of ---

# summarise WHAT BEGINNING [REMARK]: a line for the summary, with the time since the beginning.
summarise() { printf '   %5d s  %s\n' $(($(date +%s) - $2)) "$1${3+: $3}" | tee -a build/logs/summary; }

# print_failure LOG: without the lines about what went well.
print_failure() {
  grep -vE -e '^\[[0-9]+/[0-9]+\] [A-Z]' -e '^ *Start +[0-9]+: ' \
    -e '^ *[0-9]+/[0-9]+ Test +#.* (Passed|\*\*\*Skipped) ' -e 'warnings? generated' "$1" || :
}

# run WHAT COMMAND...: ends the script when the command fails.
run() {
  what=$1
  shift
  log=build/logs/$(echo "$what" | tr -cs 'A-Za-z0-9._\n-' -).log
  beginning=$(date +%s)
  echo "== $what"
  with_progress "$log" "$@" || {
    print_failure "$log" >&2
    echo "$0: FAILED: $what (all that was printed is in $log)" >&2
    exit 1
  }
}

# build NAME ARGUMENT...: the build in build/NAME, as CMake's arguments say.
build() {
  name=$1
  shift
  run "$name: configure" cmake -B "build/$name" -DSDKDEBUGDIALOG_TESTS=ON "$@"
  run "$name: build" cmake --build "build/$name" -j "$jobs"
  summarise "$what" "$beginning"
}

# run_tests NAME WHAT ARGUMENT...: the tests of build/NAME, as ctest's arguments say; within the command $around, if
# there is one.
run_tests() {
  name=$1
  title=$2
  shift 2
  run "$title" ${around:+"$around"} ctest --test-dir "build/$name" -j "$jobs" --output-on-failure --no-tests=error "$@"
  sed -n '/tests passed, /p; /^Total Test time/p' "$log"
  skipped=$(grep -c '\*\*\*Skipped' "$log") || :
  count=$(sed -n 's/.*tests failed out of //p' "$log")
  awk -v title="$title" '/: Skipped$/ { getline; print title ": " $0 }' "build/$name/Testing/Temporary/LastTest.log" \
    >>build/logs/skipped
  summarise "$title" "$beginning" "$count tests, $skipped of them skipped"
}

build_and_test() {
  build "$@"
  run_tests "$1" "$1: test"
}

# build_dialog NAME ARGUMENT...: the dialog in build/dialog-NAME, on the library in build/NAME, as CMake's arguments say.
build_dialog() {
  library=$1
  shift
  run "dialog-$library: install the library" cmake --install "build/$library" --prefix "$PWD/build/$library/prefix"
  build "dialog-$library" -S dialog -G Ninja -DCMAKE_BUILD_TYPE=Debug -DSDKDEBUGDIALOG_WERROR=ON \
    -DCMAKE_PREFIX_PATH="$PWD/build/$library/prefix" "$@"
}

# The reasons that tests gave for being skipped, and how many gave each.
print_skipped() {
  [ -s build/logs/skipped ] || return 0
  echo "   skipped tests, by reason:"
  sort build/logs/skipped | uniq -c | sed 's/^/ /'
}

# --- The steps ---

step_format() {
  sources=$(git ls-files '*.cpp' '*.h')
  # shellcheck disable=SC2086 # a list of words
  run "format" clang-format --dry-run --Werror $sources
  summarise "$what" "$beginning"
}

step_release() { build_and_test release --preset release; }

step_sanitize() { build_and_test sanitize --preset sanitize; }

step_dev() { build_and_test dev --preset dev; }

step_clang() { build_and_test clang --preset release -DCMAKE_CXX_COMPILER=clang++; }

# clang-tidy checks what is compiled, so only what has changed is checked again.
step_lint() {
  echo "== lint: clang-tidy, within the build that is named contrast"
  rules=$(git ls-files '*.clang-tidy' | xargs cat | sha256sum)
  [ "$(cat build/contrast/rules 2>/dev/null)" = "$rules" ] || rm -rf build/contrast build/dialog-contrast
  mkdir -p build/contrast
  echo "$rules" >build/contrast/rules
  build contrast --preset contrast
  # Qt's generators write code that is not ours: a check that finds nothing there stands for all.
  mkdir -p build/dialog-contrast
  printf '%s\n' 'Checks: -*,modernize-use-nullptr' >build/dialog-contrast/.clang-tidy
  build_dialog contrast -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_CLANG_TIDY="clang-tidy;--quiet" \
    -DCMAKE_CXX_FLAGS_DEBUG="-O0 -funsigned-char" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
}

step_contrast() {
  step_lint
  run_tests contrast "contrast: test"
}

# The system does not get to know the locales.
step_locales() {
  build release --preset release
  mkdir -p build/locales
  for locale in de_DE.ISO-8859-1 de_DE.UTF-8 tr_TR.ISO-8859-9 tr_TR.UTF-8; do
    [ -d "build/locales/$locale" ] || localedef -i "${locale%%.*}" -f "${locale#*.}" "build/locales/$locale"
    export TEST_LOCALE="$locale" LOCPATH="$PWD/build/locales"
    run_tests release "locale $locale: test"
    unset TEST_LOCALE LOCPATH
  done
}

step_fuzz() {
  build fuzz --preset fuzz -DSDKDEBUGDIALOG_TESTS=OFF
  run_tests fuzz "fuzz: test"
}

# Projects of users, outside of this one.
step_consumers() {
  build release --preset release
  run "consumers: configure" cmake -S tests/consumers -B build/consumers -DSOURCE="$PWD" -DBUILD="$PWD/build/release"
  run_tests consumers "consumers: test"
}

# The tests that have several threads.
step_tsan() {
  if [ ! -d tests/threads ] && ! grep -rqE 'TEST(_F|_P)?\(.*Threads' tests --include='*.cpp'; then
    echo "== tsan: no test has several threads"
    return
  fi
  build tsan --preset tsan
  run_tests tsan "tsan: test" -R '^threads/|Threads'
}

# The reference documentation, without warnings and dead links.
step_docs() {
  run "docs" build_reference
  summarise "$what" "$beginning"
}

# The dialog on the library that is built with sanitizers: without a display, then on one that nobody sees, where its
# windows take the keyboard from each other if they are not one at a time.
step_dialog() {
  run "dialog: configure the library" cmake --preset sanitize
  run "dialog: build the library" cmake --build --preset sanitize -j "$jobs" \
    --target SdkDebugDialog SdkDebugDialogDesignFile qvtcfg
  summarise "$what" "$beginning"
  build_dialog sanitize -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1" -DSDKDEBUGDIALOG_SANITIZE=address,undefined
  export QT_QPA_PLATFORM=offscreen WALK_STEPS=350
  run_tests dialog-sanitize "dialog: test without a display"
  export WALK_STEPS=100
  around=on_display
  run_tests dialog-sanitize "dialog: test on a display" -j 1
  unset QT_QPA_PLATFORM WALK_STEPS around
}

step_abi() {
  run "abi" ./scripts/abi
  summarise "$what" "$beginning" "$(tail -n 1 "$log")"
}

step_packages() {
  run "packages: built twice" ./scripts/package --twice
  grep '\.deb$' "$log"
  summarise "$what" "$beginning" "$(grep -c '\.deb$' "$log") packages, the same bytes"
  run "packages: in a bare system" ./scripts/try-packages
  summarise "$what" "$beginning" "$(tail -n 1 "$log")"
}

# A program at a time: to start valgrind for every test would take most of the time. tests/faults is left out: it
# replaces the heap functions, as valgrind does, and traces and kills processes.
step_valgrind() {
  build release --preset release
  for program in util platform model options hwquery settings findings threads docs qvtcfg; do
    run "valgrind: $program" valgrind --quiet --error-exitcode=1 --leak-check=full --trace-children=yes \
      --trace-children-skip='/bin/*,/usr/bin/*' "build/release/tests/${program}_tests"
    summarise "$what" "$beginning"
  done
}

# --- Other machines ---

# machine NAME: how to build for it, and how to run what was built.
# An x86-64 machine runs the programs of its 32-bit kin by itself: their loader alone has to be named.
machine() {
  case $1 in
    arm64) triple=aarch64-linux-gnu emulator="qemu-aarch64;-L;/usr/$triple" ;;
    armhf) triple=arm-linux-gnueabihf emulator="qemu-arm;-L;/usr/$triple" ;;
    i386) triple=i686-linux-gnu emulator="/usr/$triple/lib/ld-linux.so.2;--library-path;/usr/$triple/lib" ;;
    s390x) triple=s390x-linux-gnu emulator="qemu-s390x;-L;/usr/$triple" ;;
  esac
}

test_on() {
  machine "$1"
  unpack "$1" "$PWD/build/root-$1" libboost1.74-dev libboost-system1.74-dev libboost-filesystem1.74-dev \
    libboost-filesystem1.74.0 libgtest-dev libgmock-dev librapidcheck-dev libcli11-dev nlohmann-json3-dev
  if ! "${emulator%%;*}" --version >build/logs/emulator.log 2>&1; then
    cat build/logs/emulator.log >&2
    echo "$0: this machine cannot run programs for $1" >&2
    exit 1
  fi
  build_and_test "$1" --preset release --toolchain "$PWD/cmake/debian-cross.cmake" \
    -DTARGET_TRIPLE="$triple" -DTARGET_RUN="$emulator" -DTARGET_ROOT="$PWD/build/root-$1"
}

step_arm64() { test_on arm64; }
step_armhf() { test_on armhf; }
step_i386() { test_on i386; }
step_s390x() { test_on s390x; }
