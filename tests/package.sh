#!/bin/sh
# Uses the libraries as a stranger would: package.sh SOURCE_DIRECTORY BUILD_DIRECTORY WORK_DIRECTORY
# Installs to a stage, then builds and runs one program by find_package, by pkg-config and by add_subdirectory.
set -eu
source=$1 build=$2 work=$3
rm -rf "$work"
mkdir -p "$work/client" "$work/embedded"
cmake --install "$build" --prefix "$work/stage" > "$work/install.log"

cat > "$work/client/main.cpp" << 'END'
#include "VEKPrtLineElt.h"
#include "VEKRef.h"
int main() { return VEKRef<VEKPrtLineElt>::Adopt(new VEKPrtLineElt)->IsAKindOf("VEKPrtGraphicPrimitiveElt") ? 0 : 1; }
END
cat > "$work/client/CMakeLists.txt" << 'END'
cmake_minimum_required(VERSION 3.22)
project(client CXX)
find_package(VEKPrt2DModel 1 REQUIRED)
add_executable(client main.cpp)
target_link_libraries(client PRIVATE VEKPrt2DModel::VEKPrt2DModel)
END
cmake -G Ninja -S "$work/client" -B "$work/client/build" -DCMAKE_PREFIX_PATH="$work/stage" > "$work/client.log"
cmake --build "$work/client/build" >> "$work/client.log"
"$work/client/build/client"
echo "package: find_package works"

libraries=$(dirname "$(find "$work/stage" -name VEKPrt2DModel.pc)")/..
flags=$(PKG_CONFIG_PATH="$libraries/pkgconfig" pkg-config --cflags --libs VEKPrt2DModel)
# shellcheck disable=SC2086
c++ -std=c++11 "$work/client/main.cpp" $flags -o "$work/client/plain"
LD_LIBRARY_PATH=$libraries "$work/client/plain"
echo "package: pkg-config works"

# A host with a framework of its own: the target is there before the directory is added.
cp "$work/client/main.cpp" "$work/embedded"
cat > "$work/embedded/framework.cmake" << END
add_library(host_framework SHARED IMPORTED)
set_target_properties(host_framework PROPERTIES
  IMPORTED_LOCATION "$(find "$libraries" -name 'libVEKFramework.so')"
  INTERFACE_INCLUDE_DIRECTORIES "$source/framework/include")
add_library(VEK::Framework ALIAS host_framework)
END
cat > "$work/embedded/CMakeLists.txt" << END
cmake_minimum_required(VERSION 3.22)
project(embedded CXX)
include(framework.cmake)
add_subdirectory("$source" model)
add_executable(embedded main.cpp)
target_link_libraries(embedded PRIVATE VEKPrt2DModel::VEKPrt2DModel)
END
cmake -G Ninja -S "$work/embedded" -B "$work/embedded/build" > "$work/embedded.log"
cmake --build "$work/embedded/build" -j2 >> "$work/embedded.log"
[ ! -e "$work/embedded/build/model/framework" ] || { echo "package: the host's framework was not used" >&2; exit 1; }
"$work/embedded/build/embedded"
echo "package: add_subdirectory with a host's own framework works"

# What such a host installs links against the host's VEK::Framework, and says so where there is none.
cmake --install "$work/embedded/build/model" --prefix "$work/hosted" >> "$work/install.log"
if cmake -G Ninja -S "$work/client" -B "$work/client/hosted" -DCMAKE_PREFIX_PATH="$work/hosted" > "$work/hosted.log" 2>&1
then
    echo "package: found without the host's framework" >&2
    exit 1
fi
grep -q "built for a host's own framework" "$work/hosted.log"
sed "s#^find_package.*#include($work/embedded/framework.cmake)\n&#" "$work/client/CMakeLists.txt" > "$work/hosted.txt"
mkdir -p "$work/hosted-client"
cp "$work/client/main.cpp" "$work/hosted-client"
mv "$work/hosted.txt" "$work/hosted-client/CMakeLists.txt"
cmake -G Ninja -S "$work/hosted-client" -B "$work/hosted-client/build" -DCMAKE_PREFIX_PATH="$work/hosted" >> "$work/hosted.log"
cmake --build "$work/hosted-client/build" >> "$work/hosted.log"
"$work/hosted-client/build/client"
echo "package: what a host installs works with its framework"
