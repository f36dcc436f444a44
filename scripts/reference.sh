# shellcheck shell=sh
# Sourced by the other scripts: builds the reference documentation.
. scripts/version.sh

# Afterwards the pages are in build/docs/html, or all warnings have been printed and the pages are gone.
build_reference() {
  rm -rf build/docs
  # The headers as they are installed, so that the pages tell what to include.
  headers=build/docs/include/SdkDebugDialog
  mkdir -p $headers/platform
  ln -s "$PWD"/include/SdkDebugDialog/*.h $headers
  ln -s "$PWD"/platform/ComMsgMgr.h "$PWD"/platform/DesignFile.h "$PWD"/platform/HHSMHwManager.h $headers/platform
  if ! VERSION=$(version_in .) doxygen docs/Doxyfile || ! python3 docs/links.py build/docs/html; then
    rm -rf build/docs
    return 1
  fi
}
