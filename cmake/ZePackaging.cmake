# Debian packages from the install components: `cpack -G DEB` in the build
# directory writes one package per component.
set(CPACK_PACKAGE_NAME ze-adapter)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_CONTACT "ze_adapter developers <ze-adapter@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_GENERATOR DEB)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_COMPONENTS_ALL runtime devel)

set(ze_deb_version "${PROJECT_VERSION}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libze-adapter${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
  "switch adapter library of the PON terminal (shared object)")

set(CPACK_DEBIAN_DEVEL_PACKAGE_NAME libze-adapter-dev)
set(CPACK_DEBIAN_DEVEL_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVEL_PACKAGE_DEPENDS
  "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${ze_deb_version})")
set(CPACK_COMPONENT_DEVEL_DESCRIPTION
  "switch adapter library of the PON terminal (headers, pkg-config and CMake package)")

if(ZE_BUILD_HOST_TOOLS)
  list(APPEND CPACK_COMPONENTS_ALL host)
  set(CPACK_DEBIAN_HOST_PACKAGE_NAME ze-adapter-host-tools)
  set(CPACK_DEBIAN_HOST_PACKAGE_SECTION devel)
  # dpkg-shlibdeps cannot see the runtime package beside this one, so the
  # dependencies of zesh and the host libraries are named here.
  set(CPACK_DEBIAN_HOST_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${ze_deb_version}), libc6, libgcc-s1, libstdc++6")
  if(LIBEDIT_LIB)
    string(APPEND CPACK_DEBIAN_HOST_PACKAGE_DEPENDS ", libedit2")
  endif()
  set(CPACK_COMPONENT_HOST_DESCRIPTION
    "switch adapter library of the PON terminal on a PC: host platform, datapath simulator and the zesh shell")
endif()

include(CPack)
