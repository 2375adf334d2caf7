#!/usr/bin/env bash
# Installs the build into a fresh prefix and checks what a desktop looks for there, validated by the
# desktop's own tools, and the installed program running.   check_install.sh BUILD_DIR
set -uo pipefail
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
failed=0
fail() { echo "FAIL: $*"; failed=1; }
cmake --install "$1" --prefix "$prefix" >/dev/null || fail "cmake --install"
entry=$prefix/share/applications/org.quillora.QuilloraPro.desktop
[ -x "$prefix/bin/quillora" ] || fail "bin/quillora is not installed"
[ -f "$prefix/share/icons/hicolor/scalable/apps/quillora.svg" ] || fail "the scalable icon is not installed"
for size in 16 32 48 64 128 256; do
  # A PNG's width and height sit at bytes 16 to 23.
  dims=$(od -An -tu1 -j16 -N8 "$prefix/share/icons/hicolor/${size}x${size}/apps/quillora.png" | awk '{print $3*256+$4 "x" $7*256+$8}')
  [ "$dims" = "${size}x${size}" ] || fail "the ${size}x${size} icon is '$dims'"
done
grep -qx 'MimeType=image/bmp;image/jpeg;image/png;' "$entry" || fail "the entry does not open BMP, JPEG and PNG"
grep -qx 'Icon=quillora' "$entry" || fail "the entry does not name the installed icon"
grep -qx 'Exec=quillora %f' "$entry" || fail "the entry does not hand the program its file"
echo "desktop-file-validate:"; desktop-file-validate "$entry" || fail "desktop-file-validate"
echo "appstream-util validate-relax:"
appstream-util validate-relax --nonet "$prefix/share/metainfo/org.quillora.QuilloraPro.metainfo.xml" || fail "validate-relax"
out=$(echo 'expect msgbox ""' | "$prefix/bin/quillora" --script - 2>&1) || fail "the installed program does not run: $out"
[ $failed -eq 0 ] && echo "installed as expected"
exit $failed
