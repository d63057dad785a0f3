# shellcheck shell=bash
# What ./check and ./package need to build for Windows. To be sourced after common.sh.

windows_packages=(g++-mingw-w64-x86-64-posix=x86_64-w64-mingw32-g++-posix libz-mingw-w64-dev=/usr/x86_64-w64-mingw32/lib/libz.a
  dpkg-dev=dpkg-source xz-utils=xz googletest=/usr/src/googletest/CMakeLists.txt)
wine=/usr/lib/wine/wine64
wine_packages=("wine64=$wine" libwine=/usr/lib/x86_64-linux-gnu/wine)

windows="$top/build/windows"

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

# The libraries without the window toolkit, built once.
build_windows_libraries() {
  [ -e "$windows/libraries/lib/libgtest.a" ] && return 0
  fetch_source chmlib && fetch_source libxlsxwriter || return
  ln -sfn /usr/src/googletest "$windows/sources/googletest"
  cmake -G Ninja -S "$top/windows/libraries" -B "$windows/libraries-build" -DSOURCES="$windows/sources" \
    -DCMAKE_TOOLCHAIN_FILE="$top/windows/mingw.cmake" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF \
    -DCMAKE_INSTALL_PREFIX="$windows/libraries" &&
    cmake --build "$windows/libraries-build" && cmake --install "$windows/libraries-build"
}

# in_wine COMMAND...: with a Windows of its own, which shows nothing and logs nothing.
in_wine() { WINEPREFIX="$windows/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=" "$@"; }

# The first program would wait for it otherwise, and the second one find it half done.
make_wine() { [ -e "$windows/wine/system.reg" ] || in_wine timeout 300 "$wine" wineboot --init; }
