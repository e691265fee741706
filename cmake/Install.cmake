# Installs the libraries, their headers, and what find_package and pkg-config look for.  What programs need to run is
# the component Runtime, what it takes to build them is Development.
include(CMakePackageConfigHelpers)
set(VEKPRT_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VEKPrt2DModel${VEKPRT_SUFFIX})

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

set(defines "")
if(VEKPRT_SUFFIX)
  string(APPEND defines " -DVEK_FRAMEWORK_NAME=${VEKPRT_FRAMEWORK_ID}")
endif()
if(NOT BUILD_SHARED_LIBS)
  string(APPEND defines " -DVEKPRT2DMODEL_STATIC")
  set(VEK_FRAMEWORK_PC_DEFINES " -DVEKFRAMEWORK_STATIC")
endif()
vekprt_install(VEKPrt2DModel VEKPrt2DModelTargets VEKPrt2DModel vekprt2dmodel)
vekprt_install_pc(VEKPrt2DModel${VEKPRT_SUFFIX} "${PROJECT_DESCRIPTION}" vekprt2dmodel "${defines}" ${VEKPRT_FRAMEWORK})
# The framework is installed only where it is the reference implementation.  A host installs its own: its target
# VEK::Framework, and for pkg-config a module of the framework's name.
if(TARGET VEKFramework)
  vekprt_install(VEKFramework VEKFrameworkTargets VEK vekframework)
  vekprt_install_pc(VEKFramework "Object framework of VEKPrt2DModel" vekframework "${VEK_FRAMEWORK_PC_DEFINES}" "")
endif()

# A consumer is a component of the package: a file that finds what it needs, and defines its target.
get_property(consumers GLOBAL PROPERTY VEKPRT_CONSUMERS)
foreach(name IN LISTS consumers)
  foreach(property TARGET DESCRIPTION FIND REQUIRES)
    get_property(${property} GLOBAL PROPERTY VEKPRT_${name}_${property})
  endforeach()
  vekprt_install(${TARGET} VEKPrt2DModel${name}Targets VEKPrt2DModel vekprt2dmodel)
  vekprt_install_pc(VEKPrt2DModel${name}${VEKPRT_SUFFIX} "${DESCRIPTION}" vekprt2dmodel "" "${REQUIRES}")
  set(file ${PROJECT_BINARY_DIR}/VEKPrt2DModel${name}.cmake)
  file(CONFIGURE OUTPUT ${file} @ONLY CONTENT
    "@FIND@include(\${CMAKE_CURRENT_LIST_DIR}/VEKPrt2DModel@name@Targets.cmake)\nset(VEKPrt2DModel_@name@_FOUND TRUE)\n")
  install(FILES ${file} DESTINATION ${VEKPRT_PACKAGE_DIR} COMPONENT Development)
endforeach()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VEKPrt2DModelConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfig.cmake INSTALL_DESTINATION ${VEKPRT_PACKAGE_DIR}
  NO_CHECK_REQUIRED_COMPONENTS_MACRO NO_SET_AND_CHECK_MACRO)
configure_file(${PROJECT_SOURCE_DIR}/cmake/VEKPrt2DModelConfigVersion.cmake.in
  ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfigVersion.cmake @ONLY)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VEKPrt2DModelVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfig.cmake ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfigVersion.cmake
  ${PROJECT_BINARY_DIR}/VEKPrt2DModelVersion.cmake ${PROJECT_SOURCE_DIR}/cmake/FrameworkName.cmake
  DESTINATION ${VEKPRT_PACKAGE_DIR} COMPONENT Development)

if(BUILD_SHARED_LIBS)
  # Where gdb looks for what it is to load with a library: under the library's full name.  The prefix is the one of
  # `cmake --install --prefix`.
  install(FILES ${PROJECT_SOURCE_DIR}/debug/printers.py COMPONENT Development
    DESTINATION "${CMAKE_INSTALL_DATADIR}/gdb/auto-load\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}"
    RENAME $<TARGET_FILE_NAME:VEKPrt2DModel>-gdb.py)
endif()
