#!/bin/sh
# Uses the libraries as a stranger would: package.sh SOURCE_DIRECTORY BUILD_DIRECTORY WORK_DIRECTORY
# Installed and moved, then by find_package and pkg-config; embedded with frameworks of a host's own; static.
set -eu
source=$1 build=$2 work=$3
fail() { echo "package: $*" >&2; exit 1; }
quietly() { "$@" > "$work/log" 2>&1 || { cat "$work/log" >&2; fail "$*"; }; }
rm -rf "$work"
mkdir -p "$work"

# project NAME: a client, which calls no function of the framework; the lines of its CMakeLists.txt are read.
project() {
    mkdir -p "$work/$1"
    { printf 'cmake_minimum_required(VERSION 3.22)\nproject(client CXX)\n'; cat; } > "$work/$1/CMakeLists.txt"
    cat > "$work/$1/main.cpp" << 'END'
#include "VEKPrtStrokeAttributes.h"
int main() {
    double width = 0.0;
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeWidth(2.5);
    stroke.GetStrokeWidth(width);
    return width == 2.5 ? 0 : 1;
}
END
    cat >> "$work/$1/CMakeLists.txt" << 'END'
add_executable(client main.cpp)
target_link_libraries(client PRIVATE VEKPrt2DModel::VEKPrt2DModel)
target_link_options(client PRIVATE LINKER:--as-needed)
END
}
# run NAME [OPTION...]: configures, builds and runs it.
run() {
    name=$1
    shift
    quietly cmake -G Ninja -S "$work/$name" -B "$work/$name/build" "$@"
    quietly cmake --build "$work/$name/build"
    "$work/$name/build/client" || fail "$name does not run"
    echo "package: $name"
}
# refused NAME MESSAGE [OPTION...]: it does not configure, and says why.
refused() {
    name=$1 message=$2
    shift 2
    if cmake -G Ninja -S "$work/$name" -B "$work/$name/build" "$@" > "$work/log" 2>&1; then fail "$name is accepted"; fi
    tr -s ' \n' ' ' < "$work/log" | grep -q "$message" || fail "$name: no word of '$message'"
    echo "package: $name is refused"
}
# flags PREFIX MODULE: what pkg-config says.
flags() {
    PKG_CONFIG_PATH=$(dirname "$(find "$1" -name VEKPrt2DModel.pc)") pkg-config --cflags --libs "$2"
}

# Installed, and moved to another place.
quietly cmake --install "$build" --prefix "$work/first"
mv "$work/first" "$work/stage"
project find-package << 'END'
find_package(VEKPrt2DModel 1 REQUIRED)
END
run find-package -DCMAKE_PREFIX_PATH="$work/stage"
readelf -d "$work/find-package/build/client" | grep -q 'NEEDED.*VEKFramework' && fail "the client needs the framework itself"
project unknown-component << 'END'
find_package(VEKPrt2DModel 1 REQUIRED COMPONENTS Svg Wax)
END
refused unknown-component 'no component Wax' -DCMAKE_PREFIX_PATH="$work/stage"

libraries=$(dirname "$(find "$work/stage" -name libVEKPrt2DModel.so)")
# shellcheck disable=SC2046
c++ -std=c++11 "$work/find-package/main.cpp" -Wl,--as-needed $(flags "$work/stage" VEKPrt2DModel) -o "$work/plain"
LD_LIBRARY_PATH=$libraries "$work/plain"
echo "package: pkg-config"

quietly cmake --install "$build" --prefix "$work/runtime" --component Runtime
extra=$(find "$work/runtime" ! -type d ! -name 'libVEK*.so.1*')
[ -z "$extra" ] || fail "in the component Runtime: $extra"
[ "$(find "$work/runtime" -name '*.so.1' | wc -l)" -eq 2 ] || fail "not two libraries in the component Runtime"

# The program of the README with the installed consumer, by both ways.
if [ -e "$libraries/libVEKPrt2DModelSvg.a" ]; then
    project quick-start << 'END'
find_package(VEKPrt2DModel 1 REQUIRED COMPONENTS Svg)
link_libraries(VEKPrt2DModel::Svg)
END
    cp "$source/examples/quickstart/main.cpp" "$work/quick-start"
    run quick-start -DCMAKE_PREFIX_PATH="$work/stage" > "$work/line.svg"
    # shellcheck disable=SC2046
    c++ "$work/quick-start/main.cpp" $(flags "$work/stage" VEKPrt2DModelSvg) -o "$work/quick-start/plain"
    LD_LIBRARY_PATH=$libraries "$work/quick-start/plain" | grep -q '<line .*stroke="#c81e28"' || fail "no line is drawn"
    grep -q '<line .*stroke="#c81e28"' "$work/line.svg" || fail "no line is drawn with find_package"
    echo "package: the quick start"
fi

# A host with a framework of its own; here that is the reference implementation under another name.
host() { # name, type of library, more lines
    { printf 'file(GLOB sources %s/framework/src/*.cpp)\nadd_library(hostfw %s ${sources})\n' "$source" "$2"
      printf 'target_include_directories(hostfw PUBLIC %s/framework/include)\n' "$source"
      printf 'add_library(VEK::Framework ALIAS hostfw)\nadd_subdirectory(%s model)\n%s\n' "$source" "${3:-}"; } |
        project "$1"
    run "$1" -DCMAKE_BUILD_TYPE=Debug
    [ ! -e "$work/$1/build/model/framework" ] || fail "$1: the host's framework is not used"
}
host shared-host SHARED
host static-host STATIC 'get_target_property(type VEKPrt2DModel TYPE)
if(NOT type STREQUAL STATIC_LIBRARY)
  message(FATAL_ERROR "the framework would stand in a program twice")
endif()'

# What a host installs asks for its framework: by CMake, where it may be imported, and by pkg-config.
quietly cmake --install "$work/shared-host/build" --prefix "$work/hosted"
framework=$work/shared-host/build/libhostfw.so
project without-framework << 'END'
find_package(VEKPrt2DModel 1 REQUIRED)
END
refused without-framework "built for a host's own framework" -DCMAKE_PREFIX_PATH="$work/hosted"
project imported-host << END
add_library(VEK::Framework SHARED IMPORTED)
set_target_properties(VEK::Framework PROPERTIES
  IMPORTED_LOCATION "$framework" INTERFACE_INCLUDE_DIRECTORIES "$source/framework/include")
find_package(VEKPrt2DModel 1 REQUIRED)
link_libraries(-Wl,-rpath-link,$(dirname "$framework"))
END
LD_LIBRARY_PATH=$(dirname "$framework") run imported-host -DCMAKE_PREFIX_PATH="$work/hosted"
if flags "$work/hosted" VEKPrt2DModel > /dev/null 2>&1; then fail "pkg-config does not ask for the host's framework"; fi
cat > "$(dirname "$(find "$work/hosted" -name VEKPrt2DModel.pc)")/VEKFramework.pc" << END
Name: VEKFramework
Description: of a host
Version: 1
Cflags: -I$source/framework/include
Libs: $framework
END
flags "$work/hosted" VEKPrt2DModel | grep -q hostfw || fail "pkg-config does not lead to the host's framework"
project embedded-imported-host << END
add_library(VEK::Framework SHARED IMPORTED)
set_target_properties(VEK::Framework PROPERTIES
  IMPORTED_LOCATION "$framework" INTERFACE_INCLUDE_DIRECTORIES "$source/framework/include")
add_subdirectory("$source" model)
END
run embedded-imported-host -DCMAKE_BUILD_TYPE=Debug -DVEKPRT_INSTALL=OFF -DCMAKE_INSTALL_PREFIX="$work/nothing"
cmake --install "$work/embedded-imported-host/build" > /dev/null
[ -z "$(find "$work/nothing" -type f 2> /dev/null)" ] || fail "installed in spite of VEKPRT_INSTALL=OFF"

# Static libraries, installed.
project static-build << END
add_subdirectory("$source" model)
END
run static-build -DCMAKE_BUILD_TYPE=Debug -DBUILD_SHARED_LIBS=OFF
quietly cmake --install "$work/static-build/build" --prefix "$work/static"
[ -z "$(find "$work/static" -name '*.so*')" ] || fail "a static build installs shared libraries"
project static-package << 'END'
find_package(VEKPrt2DModel 1 REQUIRED)
END
run static-package -DCMAKE_PREFIX_PATH="$work/static"
# shellcheck disable=SC2046
c++ "$work/find-package/main.cpp" $(flags "$work/static" VEKPrt2DModel) -o "$work/plain" && "$work/plain"
