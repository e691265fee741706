#!/bin/sh
# Uses the libraries as a stranger would: package.sh SOURCE_DIRECTORY BUILD_DIRECTORY WORK_DIRECTORY
# Installed and moved, then by find_package and pkg-config; embedded; static; on a host's own framework, with the
# mistakes that can be made there.
set -eu
source=$1 build=$2 work=$3
fail() { echo "package: $*" >&2; exit 1; }
quietly() { "$@" > "$work/log" 2>&1 || { cat "$work/log" >&2; fail "$*"; }; }
rm -rf "$work"
mkdir -p "$work"

# project NAME: a client; the lines of its CMakeLists.txt are read.
project() {
    mkdir -p "$work/$1"
    { printf 'cmake_minimum_required(VERSION 3.22)\nproject(client CXX)\nadd_executable(client main.cpp)\n'; cat; } \
        > "$work/$1/CMakeLists.txt"
    printf '#include "VEKPrtStrokeAttributes.h"\nint main() { return VEKPrtStrokeAttributes() == VEKPrtStrokeAttributes() ? 0 : 1; }\n' \
        > "$work/$1/main.cpp"
    cat >> "$work/$1/CMakeLists.txt" << 'END'
target_link_libraries(client PRIVATE VEKPrt2DModel::VEKPrt2DModel)
target_link_options(client PRIVATE LINKER:--as-needed,--gc-sections)
END
}
# readme NAME NUMBER: the program of the README, with the README's lines for CMake, of which there are three.
readme() {
    awk -v wanted="$2" '/^```$/ { code = 0 } code; /^```cmake$/ { code = ++blocks == wanted }' "$source/README.md" |
        sed 's/my_program/client/' | project "$1"
    cp "$source/examples/quickstart/main.cpp" "$work/$1"
}
# run NAME [OPTION...]: configures, builds and runs it.
run() {
    name=$1
    shift
    rm -rf "$work/$name/build"
    quietly cmake -G Ninja -S "$work/$name" -B "$work/$name/build" "$@"
    quietly cmake --build "$work/$name/build"
    "$work/$name/build/client" > "$work/out" || fail "$name does not run"
    if [ -s "$work/out" ]; then grep -q '<line .*stroke="#c81e28"' "$work/out" || fail "$name draws no line"; fi
    echo "package: $name"
}
# refused MISTAKE MESSAGE COMMAND...: the command fails, and says why.
refused() {
    mistake=$1 message=$2
    shift 2
    if "$@" > "$work/log" 2>&1; then fail "not refused: $mistake"; fi
    tr -s ' \n' ' ' < "$work/log" | grep -q "$message" || { cat "$work/log" >&2; fail "$mistake: message lacks '$message'"; }
    echo "package: refused: $mistake"
}
# flags PREFIX MODULE: what pkg-config says.
flags() {
    PKG_CONFIG_PATH=$(dirname "$(find "$1" -name 'VEKPrt2DModel*.pc' | head -n 1)") pkg-config --cflags --libs "$2"
}

# Installed, and moved to another place.
quietly cmake --install "$build" --prefix "$work/first"
libraries=$(dirname "$(find "$work/first" -name libVEKPrt2DModel.so)")
[ -e "$work/first/share/gdb/auto-load$libraries/libVEKPrt2DModel.so.1.0.0-gdb.py" ] || fail "gdb does not find the printers"
mv "$work/first" "$work/stage"
project find-package << 'END'
find_package(VEKPrt2DModel 1 REQUIRED)
END
run find-package -DCMAKE_PREFIX_PATH="$work/stage"
readelf -d "$work/find-package/build/client" | grep -q 'NEEDED.*VEKFramework' && fail "the client needs the framework itself"
project unknown-component << 'END'
find_package(VEKPrt2DModel 1 REQUIRED COMPONENTS Svg Cairo Wax)
END
refused "an unknown component" 'no component Wax' \
    cmake -S "$work/unknown-component" -B "$work/unknown-component/build" -DCMAKE_PREFIX_PATH="$work/stage"

libraries=$(dirname "$(find "$work/stage" -name libVEKPrt2DModel.so)")
client=$work/find-package/main.cpp
# shellcheck disable=SC2046
c++ -std=c++11 "$client" -Wl,--as-needed $(flags "$work/stage" VEKPrt2DModel) -o "$work/plain"
LD_LIBRARY_PATH=$libraries "$work/plain"
echo "package: pkg-config"

quietly cmake --install "$build" --prefix "$work/runtime" --component Runtime
extra=$(find "$work/runtime" ! -type d ! -name 'libVEK*.so.1*')
[ -z "$extra" ] || fail "in the component Runtime: $extra"
[ "$(find "$work/runtime" -name '*.so.1' | wc -l)" -eq 2 ] || fail "not two libraries in the component Runtime"

# The program of the README.
readme quick-start 1
run quick-start -DCMAKE_PREFIX_PATH="$work/stage"
# shellcheck disable=SC2046
c++ "$work/quick-start/main.cpp" $(flags "$work/stage" VEKPrt2DModelSvg) -o "$work/plain"
LD_LIBRARY_PATH=$libraries "$work/plain" | grep -q '<line .*stroke="#c81e28"' || fail "no line is drawn"
sed 's/SvgWriter/CairoWriter/; s/WriteSvg(\*model, 1,/WritePdf(*model,/' "$work/quick-start/main.cpp" > "$work/pdf.cpp"
# shellcheck disable=SC2046
c++ "$work/pdf.cpp" $(flags "$work/stage" VEKPrt2DModelCairo) -o "$work/plain"
LD_LIBRARY_PATH=$libraries "$work/plain" | grep -aq '%PDF' || fail "no PDF is written"

# A host with a framework of its own, installed beside the reference; each client finds its own.
hosted=$work/hosted
quietly cmake -G Ninja -S "$source/examples/host" -B "$work/host" -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
quietly cmake --build "$work/host"
grep -q -e "-isystem $work/host/include .*VEKPrtLineElt.cpp" \
    "$work/host/compile_commands.json" || fail "the library's warnings are on for the host's headers"
quietly cmake --install "$work/host" --prefix "$hosted"
if find "$hosted" | grep -E 'vekframework|libVEKFramework|\.so\.1' | grep -v -- -hostfw; then
    fail "the host installs what is the reference's"
fi
own=$(dirname "$(find "$hosted" -name libVEKPrt2DModel-hostfw.so)")
project host-client << 'END'
find_package(hostfw REQUIRED)
find_package(VEKPrt2DModel 1 REQUIRED)
END
run host-client -DCMAKE_PREFIX_PATH="$work/stage;$hosted"
run find-package -DCMAKE_PREFIX_PATH="$hosted;$work/stage"
# shellcheck disable=SC2046
c++ -std=c++17 "$client" $(flags "$hosted" VEKPrt2DModel-hostfw) -o "$work/hosted-client"
LD_LIBRARY_PATH=$own "$work/hosted-client" || fail "a client of the host does not run"

# What was compiled on one framework is kept from what was compiled on another: by CMake, the compiler, the linker and
# the loader.
symbol=VEKPrt2DModel_compiled_on_framework
refused "a host finds the reference" "compiled on the framework VEKFramework; this project's VEK::Framework is hostfw" \
    cmake -S "$work/host-client" -B "$work/mistake-1" -DCMAKE_PREFIX_PATH="$work/stage" -Dhostfw_DIR="$own/cmake/hostfw"
refused "a client without the host's framework" 'compiled on the framework hostfw; this project defines no' \
    cmake -S "$work/find-package" -B "$work/mistake-2" -DCMAKE_PREFIX_PATH="$hosted"
# shellcheck disable=SC2046
refused "the reference's headers" "finds the headers of the reference framework" \
    c++ "$client" -I"$work/stage/include/vekframework" $(flags "$hosted" VEKPrt2DModel-hostfw) -o "$work/mistake"
# shellcheck disable=SC2046
refused "the reference's library" "undefined reference to .${symbol}_host'" \
    c++ -std=c++17 "$client" -I"$hosted/include/hostfw" $(flags "$work/stage" VEKPrt2DModel) -Wl,--gc-sections -o "$work/mistake"
mkdir "$work/wrong"
ln -s "$libraries/libVEKPrt2DModel.so.1" "$work/wrong/libVEKPrt2DModel-hostfw.so.1"
ln -s "$libraries/libVEKFramework.so.1" "$work/wrong"
refused "the reference's library under the host's name" "undefined symbol: ${symbol}_hostfw" \
    env LD_LIBRARY_PATH="$work/wrong:$own" "$work/hosted-client"

# Where the framework is static, so is the library: a program would contain it twice.
project static-host << END
add_library(static_fw STATIC "$source/examples/host/HostFramework.cpp")
add_library(VEK::Framework ALIAS static_fw)
add_subdirectory("$source" model)
END
quietly cmake -S "$work/static-host" -B "$work/static-host/build"
grep -q 'STATIC_LIBRARY on the framework static_fw' "$work/log" || fail "a static framework beside a shared library"

# Embedded: with static libraries, which are then installed; and fetched, without any install.
readme embedded 2
ln -s "$source" "$work/embedded/VEKPrt2DModel"
run embedded -DCMAKE_BUILD_TYPE=Debug -DBUILD_SHARED_LIBS=OFF
quietly cmake --install "$work/embedded/build" --prefix "$work/static"
[ -z "$(find "$work/static" -name '*.so*')" ] || fail "a static build installs shared libraries"
run quick-start -DCMAKE_PREFIX_PATH="$work/static"
# shellcheck disable=SC2046
c++ "$client" $(flags "$work/static" VEKPrt2DModel) -o "$work/plain" && "$work/plain"
readme fetched 3
run fetched -DCMAKE_BUILD_TYPE=Debug -DVEKPRT_INSTALL=OFF -DFETCHCONTENT_SOURCE_DIR_VEKPRT2DMODEL="$source"
cmake --install "$work/fetched/build" --prefix "$work/nothing" > /dev/null
[ -z "$(find "$work/nothing" -type f 2> /dev/null)" ] || fail "installed in spite of VEKPRT_INSTALL=OFF"

# Without the libraries of a consumer.
quietly cmake -S "$source" -B "$work/bare" -DCMAKE_DISABLE_FIND_PACKAGE_PNG=ON
grep -q 'consumer Svg: not built, PNG not found' "$work/log" || fail "no word of the missing consumer"
