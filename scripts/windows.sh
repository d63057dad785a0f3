# shellcheck shell=bash
# What ./check and ./package need to build for Windows. To be sourced after common.sh.

windows_packages=(g++-mingw-w64-x86-64-posix=x86_64-w64-mingw32-g++-posix libz-mingw-w64-dev=/usr/x86_64-w64-mingw32/lib/libz.a
  dpkg-dev=dpkg-source xz-utils=xz googletest=/usr/src/googletest/CMakeLists.txt)
setup_packages=(qt6-base-dev=/usr/lib/*/cmake/Qt6Widgets qt6-base-dev-tools=/usr/lib/qt6/libexec/moc perl=perl python3=python3 nsis=makensis zip=zip)
wine=/usr/lib/wine/wine64
wine_server=/usr/lib/wine/wineserver64
# Fonts of the widths of those that every Windows has.
wine_desktop_packages=(fonts-liberation=/usr/share/fonts/truetype/liberation fonts-wine=/usr/share/wine/fonts/courier.ttf)
wine_packages=("wine64=$wine" libwine=/usr/lib/x86_64-linux-gnu/wine python3=python3)

windows="$top/build/windows"
toolkit="$windows/toolkit/qt"

# fetch_source NAME: the newest source package of this release, unpacked in build/windows/sources/NAME. The machine's own
# list of package servers is read, but only a copy of it is changed.
fetch_source() {
  local name=$1 apt="$windows/apt" options
  [ -d "$windows/sources/$name" ] && return 0
  mkdir -p "$apt/parts" "$apt/lists/partial" "$windows/sources" "$windows/packages"
  options=(-o Dir::Etc::sourcelist="$apt/sources.list" -o Dir::Etc::sourceparts="$apt/parts" -o Dir::State::lists="$apt/lists"
    -o Dir::Cache::srcpkgcache= -o Dir::Cache::pkgcache= -o APT::Sandbox::User=)
  if [ ! -e "$apt/read" ]; then
    cat /etc/apt/sources.list 2>/dev/null | sed 's/^deb /deb-src /' >"$apt/sources.list"
    for list in /etc/apt/sources.list.d/*.list; do
      [ -e "$list" ] && sed 's/^deb /deb-src /' "$list" >"$apt/parts/$(basename "$list")"
    done
    for list in /etc/apt/sources.list.d/*.sources; do
      [ -e "$list" ] && sed 's/^Types:.*/Types: deb-src/' "$list" >"$apt/parts/$(basename "$list")"
    done
    apt-get "${options[@]}" update || return
    touch "$apt/read"
  fi
  (cd "$windows/packages" && apt-get "${options[@]}" source --download-only "$name") || return
  dpkg-source --no-check -x "$windows/packages/${name}"_*.dsc "$windows/sources/$name.new" &&
    mv "$windows/sources/$name.new" "$windows/sources/$name"
}

# cross_compile SOURCE BUILD PREFIX [cmake option...]: configures, builds and installs a library for Windows.
cross_compile() {
  local source=$1 build=$2 prefix=$3
  shift 3
  cmake -G Ninja -S "$source" -B "$build" -DSOURCES="$windows/sources" -DCMAKE_TOOLCHAIN_FILE="$top/windows/mingw.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DCMAKE_INSTALL_PREFIX="$prefix" "$@" && cmake --build "$build"
}

# The libraries without the window toolkit, built again only when windows/libraries has changed.
build_windows_libraries() {
  local built="$windows/libraries/built"
  if [ -e "$built" ] && [ -z "$(find "$top/windows/libraries" -newer "$built")" ]; then return 0; fi
  fetch_source chmlib && fetch_source libxlsxwriter || return
  ln -sfn /usr/src/googletest "$windows/sources/googletest"
  cross_compile "$top/windows/libraries" "$windows/libraries-build" "$windows/libraries" &&
    cmake --install "$windows/libraries-build" && touch "$built"
}

# Sets host_tools to where the toolkit's tools of this machine are, and toolkit_options to where the toolkit for Windows
# is, too. The tools may have been installed just now.
find_toolkit() {
  host_tools=(-DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$(dirname /usr/lib/*/cmake/Qt6HostInfo)")
  toolkit_options=(-DCMAKE_PREFIX_PATH="$toolkit;$windows/libraries"
    -DCMAKE_FIND_ROOT_PATH="$toolkit;$windows/libraries;/usr/x86_64-w64-mingw32" "${host_tools[@]}")
}

# The window toolkit and the charts, built once, in about half an hour. The toolkit knows its folder, so that one has the same
# name everywhere.
build_windows_toolkit() {
  find_toolkit
  [ -e "$toolkit/lib/libQCustomPlotQt6.a" ] && return 0
  fetch_source qt6-base && fetch_source qcustomplot || return
  cross_compile "$windows/sources/qt6-base" "$windows/toolkit-build" /qt "${host_tools[@]}" -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
    -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$windows=." -DCMAKE_C_FLAGS="-ffile-prefix-map=$windows=." \
    -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_opengl=OFF -DINPUT_opengl=no -DFEATURE_vulkan=OFF \
    -DFEATURE_concurrent=OFF -DFEATURE_tabletevent=OFF -DFEATURE_pkg_config=OFF -DFEATURE_androiddeployqt=OFF \
    -DFEATURE_testlib=ON -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF \
    -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF \
    -DFEATURE_system_doubleconversion=OFF || return
  DESTDIR="$windows/toolkit" cmake --install "$windows/toolkit-build" || return
  cross_compile "$top/windows/plot" "$windows/plot-build" "$toolkit" "${toolkit_options[@]}" &&
    cmake --install "$windows/plot-build" && rm -rf "$windows/toolkit-build" "$windows/plot-build"
}

# in_wine COMMAND...: with a Windows of its own, which shows nothing and logs nothing. Wine reads its command lines by the
# locale.
in_wine() {
  LC_ALL=C.UTF-8 WINEPREFIX="$windows/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=" "$@"
}

# The first program would wait for it otherwise, and the second one find it half done.
make_wine() { [ -e "$windows/wine/system.reg" ] || in_wine timeout 300 "$wine" wineboot --init; }
