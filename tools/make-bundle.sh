#!/usr/bin/env bash
# Assembles a root installation of Skelda Backup as a release does:
#
#   <Name>.app/Contents/Info.plist                      from ui-client/launcher/Info.plist.in
#   <Name>.app/Contents/MacOS/skelda-launcher           the launcher
#   <Name>.app/Contents/Resources/INFO                  version file of the shipped build
#   <Name>.app/Contents/Resources/package/skelda.vpk    the client, packed with bsdtar
#   <Name>.app/Contents/Resources/images/ico_72_skelda.png
#   <Name>.app/Contents/Frameworks/plugins/platforms    Qt's platform plug-ins (the launcher
#                                                       makes this its only plug-in folder)
#   <Name>.app/log/launcher.debug                       optional per-component log levels
#
# usage: make-bundle.sh --launcher FILE --client FILE|DIR --version MAJOR.MINOR.BUILD[.ICON]
#                       --out DIR/<Name>.app [--compress gzip|none] [--debug COMPONENT=LEVEL]...
#   --client   an application folder (Contents/...), or a single file that becomes the client
#              executable Contents/MacOS/skelda-backup-ui (for example the sample client)
#   --debug    a line of log/launcher.debug; --debug all turns DEBUG on for every component
# The same client and launcher give the same skelda.vpk, INFO and Info.plist, byte for byte:
# package entries are owned by 0:0 without names, with modes 0755 (folders, and files with any
# execute bit) or 0644, dated SOURCE_DATE_EPOCH when set, else the last commit of the
# repository holding this tool, else 2000-01-01 00:00 UTC; the gzip header holds no time.
# An existing --out folder is replaced.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
usage() { sed -n '/^# usage:/,/^# An existing/s/^# \{0,1\}//p' "$0" >&2; exit 2; }

launcher="" client="" version="" out="" compress=gzip
debug_lines=()
while [ $# -gt 0 ]; do
  case "$1" in
    --launcher) launcher="$2"; shift 2 ;;
    --client) client="$2"; shift 2 ;;
    --version) version="$2"; shift 2 ;;
    --out) out="$2"; shift 2 ;;
    --compress) compress="$2"; shift 2 ;;
    --debug)
      if [ "$2" = all ]; then
        debug_lines+=(launcher_debug=7 service_debug=7 extractor_debug=7 file_op_debug=7)
      else
        debug_lines+=("$2")
      fi
      shift 2 ;;
    *) usage ;;
  esac
done
[ -n "$launcher" ] && [ -n "$client" ] && [ -n "$version" ] && [ -n "$out" ] || usage
[ -x "$launcher" ] || { echo "make-bundle: no launcher executable at '$launcher'" >&2; exit 1; }
[ -e "$client" ] || { echo "make-bundle: no client at '$client'" >&2; exit 1; }
case "$out" in *.app) ;; *) echo "make-bundle: --out must end in .app" >&2; exit 1 ;; esac
case "$compress" in gzip) tar_z=(-z --options 'gzip:!timestamp') ;; none) tar_z=() ;; *) usage ;; esac
IFS=. read -r major minor build overlay <<<"$version"
[[ "$version" =~ ^[0-9]+\.[0-9]+\.[0-9]+(\.[0-9]+)?$ ]] ||
  { echo "make-bundle: bad version '$version'" >&2; exit 1; }
# The tool runs from its checkout, so that repository is trusted whoever owns it: git would
# refuse another account's, and the entry times would change with the account.
epoch=${SOURCE_DATE_EPOCH:-$(git -c safe.directory='*' -C "$here" log -1 --format=%ct 2>/dev/null || true)}
epoch=${epoch:-946684800}
[[ "$epoch" =~ ^[0-9]+$ ]] || { echo "make-bundle: bad SOURCE_DATE_EPOCH '$epoch'" >&2; exit 1; }
# touch -t takes local time, hence TZ below; GNU date reads -d @EPOCH, BSD date -r EPOCH.
stamp=$(date -u -d "@$epoch" +%Y%m%d%H%M.%S 2>/dev/null || date -u -r "$epoch" +%Y%m%d%H%M.%S)

write_info() {  # the Qt ini version file read by the launcher
  mkdir -p "$(dirname "$1")"
  printf '[Version]\nmajor_version=%s\nminor_version=%s\nbuild_version=%s\n' \
    "${major:-0}" "${minor:-0}" "$build" >"$1"
  printf 'icon_overlay_version=%s\n' "${overlay:-0}" >>"$1"
}

rm -rf "$out"
res="$out/Contents/Resources"
mkdir -p "$out/Contents/MacOS" "$res/package" "$res/images" "$out/Contents/Frameworks/plugins"
cp "$launcher" "$out/Contents/MacOS/skelda-launcher"
# The same Info.plist as CMake's macOS bundle: shown version MAJOR.MINOR.BUILD, bundle build BUILD.
sed -e "s/\${MACOSX_BUNDLE_SHORT_VERSION_STRING}/$major.$minor.$build/" \
    -e "s/\${MACOSX_BUNDLE_BUNDLE_VERSION}/$build/" \
    "$here/../ui-client/launcher/Info.plist.in" >"$out/Contents/Info.plist"
write_info "$res/INFO"
cp "$here/icon/ico_72_skelda.png" "$res/images/ico_72_skelda.png"

# The plug-ins of the Qt that the launcher links (Qt 5 when it links none): a Qt 6 launcher
# aborts on Qt 5's. Debian names Qt 6's query tool qtpaths6.
qt_major=$(readelf -d "$launcher" 2>/dev/null | sed -n 's/.*\[libQt\([0-9]*\)Core\.so.*/\1/p')
qt_major=${qt_major:-5}
qtpaths=qtpaths
[ "$qt_major" = 5 ] || qtpaths=qtpaths$qt_major
plugins=$($qtpaths --plugin-dir 2>/dev/null || true)
[ -d "$plugins/platforms" ] || plugins=/usr/lib/x86_64-linux-gnu/qt$qt_major/plugins
for kind in platforms xcbglintegrations; do
  if [ -d "$plugins/$kind" ]; then cp -R "$plugins/$kind" "$out/Contents/Frameworks/plugins/"; fi
done

if [ ${#debug_lines[@]} -gt 0 ]; then
  mkdir -p "$out/log"
  printf '%s\n' "${debug_lines[@]}" >"$out/log/launcher.debug"
fi

# The package: the client application's tree, entries named relative to the application
# folder, with its own version file. The version file goes in as the very last entry: a
# launcher killed in the middle of an extraction then leaves an application whose version
# file is missing (or the older one), so its build reads as older than the shipped one and
# the next run upgrades again and repairs it. An application can only read as current
# once everything before its version file is on disk.
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
if [ -d "$client" ]; then
  cp -R "$client/." "$stage/"
else
  mkdir -p "$stage/Contents/MacOS"
  cp "$client" "$stage/Contents/MacOS/skelda-backup-ui"
  chmod 755 "$stage/Contents/MacOS/skelda-backup-ui"
fi
# A package without the client would replace a working installation with one that cannot
# start, and every later run would extract it again.
[ -x "$stage/Contents/MacOS/skelda-backup-ui" ] ||
  { echo "make-bundle: the client has no executable Contents/MacOS/skelda-backup-ui" >&2; exit 1; }
# Hard-link targets are not rewritten below the application when extracting: refuse them.
if [ -n "$(find "$stage" -type f -links +1 -print -quit)" ]; then
  echo "make-bundle: the client holds hard links, which a package must not carry" >&2; exit 1
fi
write_info "$stage/Contents/Resources/INFO"
# Nothing of the builder's files may reach the package: modes and times are reset here, the
# owner below. Five-digit modes clear set-id bits, which GNU chmod keeps on folders otherwise.
find "$stage" -type d -exec chmod 00755 {} +
find "$stage" -type f \( -perm -100 -o -perm -010 -o -perm -001 \) -exec chmod 00755 {} +
find "$stage" -type f ! -perm 755 -exec chmod 00644 {} +
TZ=UTC0 find "$stage" -exec touch -h -t "$stamp" {} +
list="$stage.list"
trap 'rm -rf "$stage" "$list"' EXIT
(cd "$stage" && find . -mindepth 1 ! -path ./Contents/Resources/INFO) |
  sed 's|^\./||' | LC_ALL=C sort >"$list"
echo Contents/Resources/INFO >>"$list"
# On macOS, tar would add an AppleDouble "._" entry for every file with extended attributes or
# ACLs; the package must hold the client's own files only, and none of the metadata that the
# builder's system adds (SELinux labels, default ACLs, macOS provenance and quarantine).
COPYFILE_DISABLE=1 bsdtar -c "${tar_z[@]}" -n --uid 0 --gid 0 --numeric-owner --no-acls \
  --no-xattrs --no-fflags --no-mac-metadata -f "$res/package/skelda.vpk" -C "$stage" -T "$list"
echo "bundle: $out (build $build, $(wc -l <"$list") package entries)"
