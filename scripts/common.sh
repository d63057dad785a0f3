# shellcheck shell=bash disable=SC2034,SC2191
# Shared by ./orby, ./check, ./bench and ./package, which source it. $top is the top folder of the project.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# package=probe: the package is present if its probe is an existing command or path (pattern).
build_packages=(g++=g++ cmake=cmake ninja-build=ninja libboost-dev=/usr/include/boost/math/distributions.hpp
  nlohmann-json3-dev=/usr/include/nlohmann/json.hpp)
toolkit_packages=(qt6-base-dev=/usr/lib/*/cmake/Qt6Widgets libqcustomplot-dev=/usr/lib/*/cmake/QCustomPlotQt6 libxlsxwriter-dev=/usr/include/xlsxwriter.h
  libchm-dev=/usr/include/chm_lib.h zlib1g-dev=/usr/include/zlib.h)
test_packages=(libgtest-dev=/usr/include/gtest/gtest.h libgmock-dev=/usr/include/gmock/gmock.h
  librapidcheck-dev=/usr/include/rapidcheck.h unzip=unzip python3-jsonschema=/usr/lib/python3/dist-packages/jsonschema)
desktop_packages=(xvfb=Xvfb openbox=openbox xdotool=xdotool x11-utils=xprop xclip=xclip imagemagick=import poppler-utils=pdftotext
  at-spi2-core=/usr/libexec/at-spi-bus-launcher dbus-daemon=dbus-run-session
  python3-gi=/usr/lib/python3/dist-packages/gi xdg-utils=xdg-mime desktop-file-utils=desktop-file-validate
  shared-mime-info=update-mime-database libfile-mimeinfo-perl=mimetype mupdf-tools=mutool)
# Makes repeated builds faster.
speed_packages=(ccache=ccache mold=mold)
format_packages=(clang-format=clang-format)
lint_packages=(clang-tidy=clang-tidy cppcheck=cppcheck)
locale_packages=(locales=/usr/share/i18n/locales/de_DE)
sanitizer_packages=(clang=clang++ llvm=llvm-symbolizer
  "libclang-rt-dev=/usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-*.a")
coverage_packages=(gcovr=gcovr)
package_packages=(dpkg-dev=dpkg-shlibdeps file=file)
package_check_packages=(lintian=lintian appstream=appstreamcli)
book_packages=(fp-utils=chmcmd weasyprint=weasyprint
  fonts-dejavu-core=/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf
  fonts-dejavu-extra=/usr/share/fonts/truetype/dejavu/DejaVuSans-Oblique.ttf)
bench_packages=(valgrind=valgrind time=/usr/bin/time)

say() { printf '%s\n' "$*" >&2; }

is_present() {
  case $1 in
    /*) compgen -G "$1" >/dev/null ;;
    *) command -v "$1" >/dev/null ;;
  esac
}

# install_missing package=probe...: installs the packages whose probe fails.
install_missing() {
  local entry missing=() log="$top/build/install.log" as_root=()
  for entry in "$@"; do
    is_present "${entry#*=}" || missing+=("${entry%%=*}")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  if ! command -v apt-get >/dev/null; then
    say "These Debian packages are missing, please install what matches them here: ${missing[*]}"
    return 1
  fi
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      say "Missing packages; please run as root: apt-get install ${missing[*]}"
      return 1
    fi
    as_root=(sudo)
  fi
  say "Installing ${missing[*]} ..."
  mkdir -p "$top/build"
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o DPkg::Lock::Timeout=300)
  if ! { "${apt[@]}" update && "${apt[@]}" install --no-install-recommends "${missing[@]}"; } \
    >"$log" 2>&1 </dev/null; then
    tail -n 40 "$log" >&2
    say "The installation failed."
    return 1
  fi
}

# configure PRESET [cmake option...]: configures if the preset is new, the presets have changed, or an option is given.
# The generated build itself detects later changes of a CMakeLists.txt.
configure() {
  local preset=$1 ninja_file="$top/build/$1/build.ninja" faster=()
  shift
  if [ $# -eq 0 ] && [ -e "$ninja_file" ] && [ ! "$top/CMakePresets.json" -nt "$ninja_file" ]; then return 0; fi
  # Without this leave ccache keeps nothing that uses a precompiled header. It knows the headers from the compiler and so
  # need not look for them first.
  if command -v ccache >/dev/null; then
    faster+=("-DCMAKE_CXX_COMPILER_LAUNCHER=env;CCACHE_SLOPPINESS=pch_defines,time_macros;CCACHE_DEPEND=true;ccache")
  fi
  # It links no programs for Windows.
  if [[ $preset != windows* ]] && command -v mold >/dev/null; then faster+=(-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold); fi
  (cd "$top" && cmake --preset "$preset" "${faster[@]}" "$@")
}

# build PRESET [cmake --build argument...]
build() {
  local preset=$1
  shift
  cmake --build "$top/build/$preset" "$@"
}

# quietly LOG command...: sends the output to the log and shows it only if the command fails.
quietly() {
  local log=$1
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 </dev/null && return 0
  cat "$log" >&2
  return 1
}
