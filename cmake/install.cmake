# The installed library: libtamrel.so (SONAME with the major version, only
# the C interface and the C++ API exported), libtamrel.a with every layer
# in it, the headers under include/tamrel, the CMake package, tamrel.pc and
# the tamrel command; CPack makes the Debian packages tamrel (library and
# command) and libtamrel-dev (the rest).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(TAMREL_LAYERS tamrel_core tamrel_procedures tamrel_protocol tamrel_checks tamrel_reader tamrel_json tamrel_call
  tamrel_reference tamrel_run tamrel_readback tamrel_capi tamrel_cli)
add_library(tamrel_shared SHARED cmake/library.cpp)
set_target_properties(tamrel_shared PROPERTIES OUTPUT_NAME tamrel VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR} LINK_DEPENDS ${CMAKE_SOURCE_DIR}/cmake/exports.map)
set(TAMREL_LAYER_FILES)
foreach(layer ${TAMREL_LAYERS})
  list(APPEND TAMREL_LAYER_FILES $<TARGET_FILE:${layer}>)
endforeach()
add_dependencies(tamrel_shared ${TAMREL_LAYERS})
target_link_libraries(tamrel_shared PRIVATE -Wl,--whole-archive ${TAMREL_LAYER_FILES} -Wl,--no-whole-archive
  simdjson::simdjson PkgConfig::UTF8PROC)
target_link_options(tamrel_shared PRIVATE -Wl,--version-script=${CMAKE_SOURCE_DIR}/cmake/exports.map -Wl,--no-undefined)

# The static library: the layer archives merged into one.
set(TAMREL_STATIC ${CMAKE_BINARY_DIR}/libtamrel.a)
set(TAMREL_MRI "create ${TAMREL_STATIC}\n")
foreach(layer ${TAMREL_LAYERS})
  string(APPEND TAMREL_MRI "addlib $<TARGET_FILE:${layer}>\n")
endforeach()
string(APPEND TAMREL_MRI "save\nend\n")
file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/libtamrel.mri CONTENT "${TAMREL_MRI}")
add_custom_command(OUTPUT ${TAMREL_STATIC}
  COMMAND ${CMAKE_COMMAND} -E rm -f ${TAMREL_STATIC}
  COMMAND ${CMAKE_AR} -M < ${CMAKE_BINARY_DIR}/libtamrel.mri
  DEPENDS ${TAMREL_LAYERS} ${CMAKE_BINARY_DIR}/libtamrel.mri
  COMMENT "Merging the layer libraries into libtamrel.a")
add_custom_target(tamrel_static ALL DEPENDS ${TAMREL_STATIC})

install(TARGETS tamrel_shared LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_SKIP)
install(TARGETS tamrel_shared LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev NAMELINK_ONLY)
install(TARGETS tamrel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(FILES ${TAMREL_STATIC} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)
# The public headers under include/tamrel, each in its folder; the C
# interface also as <tamrel/c_api.h>.
include(cmake/public_headers.cmake)
foreach(header ${TAMREL_PUBLIC_HEADERS})
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tamrel/${folder} COMPONENT dev)
endforeach()
install(FILES capi/c_api.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tamrel COMPONENT dev)
install(FILES ${CMAKE_BINARY_DIR}/generated/core/version.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tamrel/core COMPONENT dev)

configure_file(cmake/tamrel.pc.in ${CMAKE_BINARY_DIR}/tamrel.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/tamrel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
set(TAMREL_CONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tamrel)
file(RELATIVE_PATH TAMREL_CONFIG_TO_PREFIX /prefix/${TAMREL_CONFIG_DIR} /prefix)
configure_file(cmake/tamrelConfig.cmake.in ${CMAKE_BINARY_DIR}/tamrelConfig.cmake @ONLY)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/tamrelConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/tamrelConfig.cmake ${CMAKE_BINARY_DIR}/tamrelConfigVersion.cmake
  DESTINATION ${TAMREL_CONFIG_DIR} COMPONENT dev)

# The Python module: beside the library in the build folder, and installed
# where Debian's python3 finds it, each knowing where the library is.
set(TAMREL_PYTHON_DIR lib/python3/dist-packages/tamrel)
configure_file(python/tamrel/__init__.py ${CMAKE_BINARY_DIR}/python/tamrel/__init__.py COPYONLY)
file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/python/tamrel/_library.py
  CONTENT "LIBRARY = \"$<TARGET_FILE_DIR:tamrel_shared>/libtamrel.so.${PROJECT_VERSION_MAJOR}\"\n")
file(RELATIVE_PATH TAMREL_PYTHON_TO_LIB /prefix/${TAMREL_PYTHON_DIR} /prefix/${CMAKE_INSTALL_LIBDIR})
file(WRITE ${CMAKE_BINARY_DIR}/python-install/_library.py
  "LIBRARY = \"${TAMREL_PYTHON_TO_LIB}/libtamrel.so.${PROJECT_VERSION_MAJOR}\"\n")
install(FILES python/tamrel/__init__.py ${CMAKE_BINARY_DIR}/python-install/_library.py
  DESTINATION ${TAMREL_PYTHON_DIR} COMPONENT runtime)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tamrel)
set(CPACK_PACKAGE_VENDOR tamrel)
set(CPACK_PACKAGE_CONTACT "tamrel developers <tamrel@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "German social-insurance reporting records from structured data")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME tamrel)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libtamrel-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "tamrel (= ${PROJECT_VERSION}), libsimdjson-dev, libutf8proc-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
include(CPack)
