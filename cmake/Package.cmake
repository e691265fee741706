# Debian packages, for scripts/package: libvekprt2dmodel1 to run programs, libvekprt2dmodel-dev to build them.
set(VEKPRT_MAINTAINER "VEKPrt2DModel maintainers <maintainers@vekprt2dmodel.example>" CACHE STRING
  "Maintainer of the Debian packages")
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
# Debug information is stripped from the libraries into a package of its own; that of the consumers stays.
set(CPACK_DEBIAN_RUNTIME_DEBUGINFO_PACKAGE ON)
# The prefix is /usr while CPack installs, too: the path of the printers contains it.
set(CPACK_SET_DESTDIR ON)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Holds pages of groups, lines, arcs, curves, text and bitmaps:
 client programs build a model; plot drivers, viewers and converters walk it.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${runtime} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
get_property(consumers GLOBAL PROPERTY VEKPRT_CONSUMERS)
foreach(name IN LISTS consumers)
  get_property(packages GLOBAL PROPERTY VEKPRT_${name}_DEBIAN)
  foreach(package IN LISTS packages)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", ${package}")
  endforeach()
endforeach()
list(JOIN consumers ", " consumers)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Development files for ${runtime}:
 headers, what CMake and pkg-config look for, consumers (${consumers}),
 printers for gdb, and the documents.")

# dpkg metadata for the shared libraries, the documents, and the changes as Debian wants to see them.
set(control ${PROJECT_BINARY_DIR}/debian)
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
file(WRITE ${control}/shlibs "libVEKPrt2DModel ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION})
libVEKFramework ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${control}/triggers;${control}/shlibs")
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${control}/changelog.Debian "vekprt2dmodel (${PROJECT_VERSION}-1) unstable; urgency=medium

  * Version ${PROJECT_VERSION}: see changelog.gz.

 -- ${VEKPRT_MAINTAINER}  ${now}\n")
configure_file(CHANGELOG.md ${control}/changelog COPYONLY)
# Without the time of compression, which would make each build another.
execute_process(COMMAND gzip -9nf changelog changelog.Debian WORKING_DIRECTORY ${control} COMMAND_ERROR_IS_FATAL ANY)
set(changes ${control}/changelog.gz ${control}/changelog.Debian.gz)
set(documents ${CMAKE_INSTALL_DATADIR}/doc)
install(FILES ${changes} DESTINATION ${documents}/${runtime} COMPONENT Runtime)
install(FILES ${changes} README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${documents}/${development}
  COMPONENT Development)
install(DIRECTORY docs DESTINATION ${documents}/${development} COMPONENT Development
  FILES_MATCHING PATTERN *.md PATTERN *.png PATTERN *.svg)
include(CPack)
