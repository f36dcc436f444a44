#!/bin/sh
# test.sh PROJECT: scripts/release refuses a tree that is not ready, for each reason, and tags one that is. In a copy of
# the files that it reads, as a repository of its own, where scripts/test does what $TEST_RESULT says.
set -eu
project=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME="$work" GIT_CONFIG_NOSYSTEM=1 TEST_RESULT=0
failed=0

mkdir "$work/ready"
cd "$project"
cp -r --parents CMakeLists.txt CHANGELOG.md debian docs/man scripts "$work/ready"
cd "$work/ready"
version=$(sed -n 's/^project(SdkDebugDialog VERSION \([^ )]*\).*/\1/p' CMakeLists.txt)
sed -i "0,/^## /s/^## .*/## $version (2026-01-31)/" CHANGELOG.md
sed -i '1s/).*/) unstable; urgency=medium/' debian/changelog
# shellcheck disable=SC2016 # for the script that is written
printf '#!/bin/sh\necho "tests: $*"\nexit $TEST_RESULT\n' >scripts/test
git init --quiet
git config user.name test
git config user.email test@example.org
git add .
git commit --quiet --message ready

# release ARGUMENT...: in a new copy, after the change that $change says; commits it if $commit says so.
release() {
  rm -rf "$work/copy"
  cp -r "$work/ready" "$work/copy"
  cd "$work/copy"
  eval "$change"
  [ -z "$commit" ] || git commit --quiet --all --allow-empty --message changed
  code=0
  ./scripts/release "$@" >"$work/output" 2>&1 || code=$?
}

# expect CODE TEXT: of the last release.
expect() {
  if [ "$code" = "$1" ] && grep -qF -e "$2" "$work/output"; then
    printf 'ok: %s: %s\n' "$change" "$2"
  else
    echo "FAILED: $change: exit code $code instead of $1, or without \"$2\":" >&2
    cat "$work/output" >&2
    failed=1
  fi
}

# refuses WHAT CHANGE: the change is committed, and the release is refused because of that.
refuses() {
  change=$2 commit=yes
  release "$version"
  expect 1 "NOT: $1: "
  tagless
}

tagless() {
  [ -z "$(git tag --list "v$version")" ] || {
    echo "FAILED: $change: tagged all the same" >&2
    failed=1
  }
}

change=: commit=
release "$version"
expect 0 "this tree can be released"
expect 0 "tests: all"
tagless
release "$version" --tag
expect 0 "tagged: v$version"
[ "$(git cat-file -t "v$version")" = tag ] || failed=1

change='echo >>CMakeLists.txt'
release "$version" --tag
expect 1 "NOT: everything is committed: "
tagless
change='echo >new'
release "$version"
expect 1 "NOT: everything is committed: "
change="git tag v$version"
release "$version"
expect 1 "NOT: there is no tag v$version yet: "
change="git tag v99.0.0"
release "$version"
expect 1 "NOT: the version is greater than the last one: "
change='TEST_RESULT=1'
release "$version" --tag
expect 1 "scripts/test all fails"
tagless
TEST_RESULT=0
change="printf 'echo >new\n' >>scripts/test; sed -i '/^exit/d' scripts/test" commit=yes
release "$version" --tag
expect 1 "NOT: everything is committed still: "
tagless
change=: commit=
release 99.0.0
expect 1 "NOT: CMakeLists.txt: "
release 1.0
expect 2 "1.0 is no version"

refuses CMakeLists.txt 'sed -i "s/\(SdkDebugDialog VERSION\) [^ ]*/\1 99.0.0/" CMakeLists.txt'
refuses CHANGELOG.md 'sed -i "0,/^## /s/^## .*/## 99.0.0 (2026-01-31)/" CHANGELOG.md'
refuses CHANGELOG.md 'sed -i "0,/^## /s/ (.*/, unreleased/" CHANGELOG.md'
refuses debian/changelog 'sed -i "1s/(.*)/(99.0.0)/" debian/changelog'
refuses debian/changelog 'sed -i "1s/unstable/UNRELEASED/" debian/changelog'
refuses docs/man/qvtcfg.1 'sed -i "s/^\.Os.*/.Os SdkDebugDialog 99.0.0/" docs/man/qvtcfg.1'
refuses docs/man/qvtcfg.1 'sed -i "/^\.Os/d" docs/man/qvtcfg.1'
refuses debian/libsdkdebugdialog99.symbols 'sed -i "s/^set(SDKDEBUGDIALOG_SOVERSION .*/set(SDKDEBUGDIALOG_SOVERSION 99)/" CMakeLists.txt'
refuses debian/control 'sed -i "s/^Package: libsdkdebugdialog1/Package: libsdkdebugdialog9/" debian/control'
refuses debian/libsdkdebugdialog1.symbols 'sed -i "1s/so.1/so.9/" debian/libsdkdebugdialog1.symbols'
exit $failed
