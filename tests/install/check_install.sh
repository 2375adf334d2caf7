#!/usr/bin/env bash
# Installs the build into a fresh prefix and checks that a desktop finds what it needs there: the
# program, its menu entry with the picture types it opens, the icon in every size, the metainfo,
# each valid by the desktop's own validators, and the installed program running.
#   check_install.sh BUILD_DIR
set -uo pipefail
build=$1
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
failed=0
fail() { echo "FAIL: $*"; failed=1; }

cmake --install "$build" --prefix "$prefix" >/dev/null || { echo "FAIL: cmake --install"; exit 1; }

id=org.quillora.QuilloraPro
entry=$prefix/share/applications/$id.desktop
meta=$prefix/share/metainfo/$id.metainfo.xml
for f in bin/quillora share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
         share/icons/hicolor/scalable/apps/quillora.svg; do
  [ -f "$prefix/$f" ] || fail "$f is not installed"
done
[ -x "$prefix/bin/quillora" ] || fail "bin/quillora is not executable"

# Each PNG is the size its folder says (width and height sit at bytes 16 to 23 of the header).
for size in 16 32 48 64 128 256; do
  png=$prefix/share/icons/hicolor/${size}x${size}/apps/quillora.png
  if [ ! -f "$png" ]; then fail "the ${size}x${size} icon is not installed"; continue; fi
  dims=$(od -An -tu1 -j16 -N8 "$png" | awk '{print $3*256+$4 "x" $7*256+$8}')
  [ "$dims" = "${size}x${size}" ] || fail "the ${size}x${size} icon is $dims"
done

grep -qx 'MimeType=image/bmp;image/jpeg;image/png;' "$entry" || fail "the entry does not open BMP, JPEG and PNG"
grep -qx 'Icon=quillora' "$entry" || fail "the entry does not name the installed icon"
grep -q '^Exec=quillora %f$' "$entry" || fail "the entry does not hand the program its file"
echo "desktop-file-validate:"; desktop-file-validate "$entry" || fail "desktop-file-validate"
echo "appstream-util validate-relax:"; appstream-util validate-relax --nonet "$meta" || fail "appstream-util validate-relax"

# The installed program runs, and the picture it is given opens.
out=$(echo 'expect msgbox ""' | "$prefix/bin/quillora" --script - 2>&1) || fail "the installed program does not run: $out"

[ $failed -eq 0 ] && echo "installed as expected under a fresh prefix"
exit $failed
