# shellcheck shell=sh
# Sourced by the other scripts: the numbers that CMakeLists.txt has.

# version_in FOLDER: the version of the sources there.
version_in() { sed -n 's/^project(SdkDebugDialog VERSION \([^ )]*\).*/\1/p' "$1/CMakeLists.txt"; }

# The number in the SONAME of this tree.
soversion() { sed -n 's/^set(SDKDEBUGDIALOG_SOVERSION \([0-9]*\))/\1/p' CMakeLists.txt; }
