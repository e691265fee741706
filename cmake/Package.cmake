# Debian packages, for scripts/package: libvekprt2dmodel1 to run programs, libvekprt2dmodel-dev to build them.
set(VEKPRT_MAINTAINER "VEKPrt2DModel maintainers <maintainers@vekprt2dmodel.example>" CACHE STRING
  "Whom the Debian packages name as their maintainer")
set(runtime libvekprt2dmodel${PROJECT_VERSION_MAJOR})
set(development libvekprt2dmodel-dev)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "${VEKPRT_MAINTAINER}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# Debug information goes into a package of its own, and is stripped from the libraries for it.
target_compile_options(VEKPrt2DModel PRIVATE -g)
target_compile_options(VEKFramework PRIVATE -g)
set(CPACK_DEBIAN_RUNTIME_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Holds pages of groups, lines, arcs, curves, text and bitmaps:
 client programs build a model; plot drivers, viewers and converters walk it.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${runtime} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), libpng-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "What it takes to build programs with ${runtime}:
 headers, what CMake and pkg-config look for, and a library that writes pages
 as SVG.")

# What dpkg is told of the shared libraries, and the changes as Debian wants to see them.
set(control ${PROJECT_BINARY_DIR}/debian)
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
file(WRITE ${control}/shlibs "libVEKPrt2DModel ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION})
libVEKFramework ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${control}/triggers;${control}/shlibs")
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${control}/changelog.Debian "vekprt2dmodel (${PROJECT_VERSION}-1) unstable; urgency=medium

  * Version ${PROJECT_VERSION}: see changelog.gz.

 -- ${VEKPRT_MAINTAINER}  ${now}\n")
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${control}/changelog COPYONLY)
foreach(file changelog changelog.Debian)
  file(ARCHIVE_CREATE OUTPUT ${control}/${file}.gz PATHS ${control}/${file} FORMAT raw COMPRESSION GZip
    COMPRESSION_LEVEL 9)
endforeach()
set(changes ${control}/changelog.gz ${control}/changelog.Debian.gz)
install(FILES ${changes} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${runtime} COMPONENT Runtime)
install(FILES ${changes} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${development} COMPONENT Development)
include(CPack)
