# Installs the libraries, their headers, and what find_package and pkg-config look for.  What programs need to run is
# the component Runtime, what it takes to build them is Development.
include(CMakePackageConfigHelpers)
set(VEKPRT_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VEKPrt2DModel)

function(vekprt_install target export namespace headers)
  install(TARGETS ${target} EXPORT ${export}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
    PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${headers} COMPONENT Development)
  install(EXPORT ${export} NAMESPACE ${namespace}:: DESTINATION ${VEKPRT_PACKAGE_DIR} COMPONENT Development)
endfunction()

# A module for pkg-config, named after its library; all its paths are relative to where it stands.
file(RELATIVE_PATH PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH PC_LIBDIR ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH PC_INCLUDEDIR ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
function(vekprt_install_pc PC_NAME PC_DESCRIPTION PC_HEADERS PC_DEFINES PC_REQUIRES)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/module.pc.in ${PROJECT_BINARY_DIR}/${PC_NAME}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${PC_NAME}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT Development)
endfunction()

if(NOT BUILD_SHARED_LIBS)
  set(VEKPRT_PC_DEFINES " -DVEKPRT2DMODEL_STATIC")
  set(VEK_FRAMEWORK_PC_DEFINES " -DVEKFRAMEWORK_STATIC")
endif()
vekprt_install(VEKPrt2DModel VEKPrt2DModelTargets VEKPrt2DModel vekprt2dmodel)
vekprt_install_pc(VEKPrt2DModel "${PROJECT_DESCRIPTION}" vekprt2dmodel "${VEKPRT_PC_DEFINES}" VEKFramework)
# The framework is installed only where it is the reference implementation.  A host ships its own: its target
# VEK::Framework, and for pkg-config a module VEKFramework.
if(TARGET VEKFramework)
  vekprt_install(VEKFramework VEKFrameworkTargets VEK vekframework)
  vekprt_install_pc(VEKFramework "Object framework of VEKPrt2DModel" vekframework "${VEK_FRAMEWORK_PC_DEFINES}" "")
endif()
if(TARGET vekprt_svg)
  vekprt_install(vekprt_svg VEKPrt2DModelSvgTargets VEKPrt2DModel vekprt2dmodel)
  vekprt_install_pc(VEKPrt2DModelSvg "Writes pages of VEKPrt2DModel as SVG" vekprt2dmodel "" "VEKPrt2DModel libpng")
endif()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VEKPrt2DModelConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfig.cmake INSTALL_DESTINATION ${VEKPRT_PACKAGE_DIR}
  NO_CHECK_REQUIRED_COMPONENTS_MACRO NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VEKPrt2DModelConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfig.cmake ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfigVersion.cmake
  DESTINATION ${VEKPRT_PACKAGE_DIR} COMPONENT Development)
