#!/usr/bin/env bash
# Installs the build into a fresh prefix and checks what a Linux desktop reads from
# it: the programs, the desktop entry, the icon and the curve-file type.
# Usage: install_test.sh BUILD_DIR EXAMPLE.gwf
set -uo pipefail
build=$1
example=$2

missing=()
for tool in desktop-file-validate xmllint update-mime-database update-desktop-database; do
  command -v "$tool" >/dev/null || missing+=("$tool")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "SKIPPED: needs ${missing[*]} (Debian: desktop-file-utils libxml2-utils shared-mime-info)"
  exit 77
fi

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
prefix=$root/usr
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

if ! cmake --install "$build" --prefix "$prefix" >"$root/install.log" 2>&1; then
  cat "$root/install.log"
  echo "FAIL: cmake --install"
  exit 1
fi

# Both programs on the PATH and nothing else there (no test or benchmark program);
# the PDF helper off the PATH.
bin=$(cd "$prefix/bin" && ls | tr '\n' ' ')
[ "$bin" = "gradewise gradewise-cli " ] || fail "bin/ holds '$bin'"
for program in bin/gradewise bin/gradewise-cli libexec/gradewise/gradewise-pdf; do
  [ -x "$prefix/$program" ] || fail "$program is not installed as a program"
done

entry=$prefix/share/applications/gradewise.desktop
mime=$prefix/share/mime/packages/gradewise.xml
[ -f "$entry" ] || fail "no desktop entry"
[ -f "$mime" ] || fail "no shared-mime-info package"

# desktop-file-validate exits 0 on mere warnings and hints; a clean entry says nothing.
report=$(desktop-file-validate "$entry" 2>&1) || fail "desktop-file-validate refused the entry"
[ -z "$report" ] || fail "desktop-file-validate: $report"
key() { sed -n "s/^$1=//p" "$entry"; }
[ "$(key Name)" = Gradewise ] || fail "Name is '$(key Name)'"
# The entry must start an installed program and hand it every file chosen.
read -r exec_program exec_args <<<"$(key Exec)"
[ -x "$prefix/bin/$exec_program" ] || fail "Exec names '$exec_program', which is not installed in bin/"
[ "$exec_args" = "%F" ] || fail "Exec passes '$exec_args' instead of the files (%F)"
key Categories | grep -q '\bEngineering\b' || fail "Categories lack Engineering"

icon=$prefix/share/icons/hicolor/scalable/apps/$(key Icon).svg
[ -f "$icon" ] || fail "Icon=$(key Icon) has no scalable icon at ${icon#"$prefix"/}"
xmllint --noout "$icon" || fail "the icon is not well-formed XML"
[ "$(xmllint --xpath 'local-name(/*)' "$icon" 2>/dev/null)" = svg ] || fail "the icon is not an SVG"

xmllint --noout "$mime" || fail "the mime package is not well-formed XML"
type=$(xmllint --xpath 'string(//*[local-name()="mime-type"]/@type)' "$mime")
[ -n "$type" ] || fail "the mime package declares no type"
key MimeType | tr ';' '\n' | grep -qx "$type" || fail "the entry does not handle $type"

# The caches a direct install refreshes: what the desktop actually looks up.
grep -qx "50:$type:\*\.gwf" "$prefix/share/mime/globs2" || fail "*.gwf is not globbed to $type"
grep -q '<comment>Gradewise curve</comment>' "$prefix/share/mime/$type.xml" 2>/dev/null ||
  fail "$type is not described as 'Gradewise curve'"
grep -qx "$type=gradewise.desktop;" "$prefix/share/applications/mimeinfo.cache" ||
  fail "Gradewise is not listed as the handler of $type"

# The installed command-line tool runs, and finds its PDF helper in libexec.
"$prefix/bin/gradewise-cli" --version >/dev/null || fail "installed gradewise-cli --version"
if env -u GRADEWISE_PDF "$prefix/bin/gradewise-cli" report "$example" --pdf "$root/report.pdf"; then
  [ "$(head -c 5 "$root/report.pdf")" = "%PDF-" ] || fail "report --pdf wrote no PDF"
else
  fail "installed gradewise-cli report --pdf"
fi

# A staged install (DESTDIR) leaves the caches to the package's own triggers.
if DESTDIR=$root/stage cmake --install "$build" --prefix /usr >"$root/stage.log" 2>&1; then
  [ -f "$root/stage/usr/share/mime/packages/gradewise.xml" ] || fail "staged install placed no mime package"
  [ ! -e "$root/stage/usr/share/mime/globs2" ] || fail "staged install wrote the mime cache"
else
  cat "$root/stage.log"
  fail "staged cmake --install"
fi

if [ "$failures" -ne 0 ]; then
  echo "$failures failure(s)"
  exit 1
fi
echo "installed tree checked"
