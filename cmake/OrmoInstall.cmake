# What users get: the libraries, the public headers with one umbrella header, the CMake package and the pkg-config file.
# Components: library, gdal, tools and development.
include(CMakePackageConfigHelpers)

file(
    GLOB_RECURSE
    ORMO_PUBLIC_HEADERS
    RELATIVE "${PROJECT_SOURCE_DIR}"
    CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/foundation/*.h"
    "${PROJECT_SOURCE_DIR}/raster/*.h"
    "${PROJECT_SOURCE_DIR}/tre/*.h"
    "${PROJECT_SOURCE_DIR}/segments/*.h"
    "${PROJECT_SOURCE_DIR}/nitf/*.h"
    "${PROJECT_SOURCE_DIR}/isd/*.h")
# Internals live in detail/ folders and are never installed.
list(FILTER ORMO_PUBLIC_HEADERS EXCLUDE REGEX "(^|/)detail/")
if(NOT TARGET ormo_csm_gdal)
    list(FILTER ORMO_PUBLIC_HEADERS EXCLUDE REGEX "^raster/gdal/")
endif()

# What brings the CSM API's global names along, and so stands in one umbrella header only.
set(ORMO_CSMAPI_USERS "^(foundation/CSM(Api|UtilGeneric)|isd/(ITSM|OrmoCSMPlugin|OrmoTSM|TSM|WrapperCSM)[A-Za-z]*)\\.h$")
set(ORMO_UMBRELLA "#pragma once\n\n// Every public class of the Ormo CSM library.\n\n")
set(ORMO_NITF_UMBRELLA "#pragma once\n\n// Every public class of the Ormo CSM library that does without the CSM API's headers.\n\n")
foreach(header IN LISTS ORMO_PUBLIC_HEADERS)
    string(APPEND ORMO_UMBRELLA "#include \"${header}\"\n")
    if(NOT header MATCHES "${ORMO_CSMAPI_USERS}")
        string(APPEND ORMO_NITF_UMBRELLA "#include \"${header}\"\n")
    endif()
endforeach()
foreach(umbrella IN ITEMS UMBRELLA:ormo_csm NITF_UMBRELLA:ormo_nitf)
    string(REGEX MATCH "^([A-Z_]+):(.+)$" _ "${umbrella}")
    file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/include/${CMAKE_MATCH_2}.h" CONTENT "${ORMO_${CMAKE_MATCH_1}}#include \"ormo_csm_version.h\"\n" @ONLY)
endforeach()
configure_file("${PROJECT_SOURCE_DIR}/cmake/ormo_csm_version.h.in" "${PROJECT_BINARY_DIR}/include/ormo_csm_version.h" @ONLY)
target_include_directories(ormo_csm PUBLIC $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>)

set(ORMO_INSTALLED_TARGETS ormo_csm ormo_csmapi)
set(ORMO_RUN_PATH "$ORIGIN:$ORIGIN/..")
if(ORMO_CSMAPI_ROOT)
    # The SDK stays where it is.
    cmake_path(GET ORMO_CSMAPI_LIBRARY PARENT_PATH ORMO_CSMAPI_LIBRARY_DIR)
    cmake_path(GET ORMO_CSMAPI_LIBRARY STEM ORMO_CSMAPI_STEM)
    string(REGEX REPLACE "^lib" "" ORMO_CSMAPI_STEM "${ORMO_CSMAPI_STEM}")
    string(APPEND ORMO_RUN_PATH ":${ORMO_CSMAPI_LIBRARY_DIR}")
    set(ORMO_PC_CSMAPI_CFLAGS "-DORMO_CSMAPI_EXTERNAL -I${ORMO_CSMAPI_INCLUDE}")
    set(ORMO_PC_CSMAPI_LIBS "-L${ORMO_CSMAPI_LIBRARY_DIR} -l${ORMO_CSMAPI_STEM}")
else()
    set(ORMO_PC_CSMAPI_CFLAGS "-I\${includedir}/csmapi")
    set(ORMO_PC_CSMAPI_LIBS "-lormo_csmapi")
    file(GLOB ORMO_CSMAPI_HEADERS "${PROJECT_SOURCE_DIR}/csmapi/*.h")
    install(FILES ${ORMO_CSMAPI_HEADERS} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/ormo-csm/csmapi"
            COMPONENT development)
endif()
install(
    TARGETS ${ORMO_INSTALLED_TARGETS}
    EXPORT OrmoCsmTargets
    LIBRARY COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development)
if(TARGET ormo_csm_gdal)
    install(
        TARGETS ormo_csm_gdal
        EXPORT OrmoCsmTargets
        LIBRARY COMPONENT gdal NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development)
    list(APPEND ORMO_INSTALLED_TARGETS ormo_csm_gdal)
endif()
set_target_properties(${ORMO_INSTALLED_TARGETS} PROPERTIES INSTALL_RPATH "${ORMO_RUN_PATH}")
if(BUILD_SHARED_LIBS)
    # CSM hosts load every library of this folder. A link, so that a host that is linked with the library as well has it
    # once; the second place of the run path above is for the name behind the link.
    install(
        CODE "set(link \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/csmplugins/libormo_csm.so\")
cmake_path(GET link PARENT_PATH folder)
file(MAKE_DIRECTORY \"\${folder}\")
file(CREATE_LINK ../libormo_csm.so.${PROJECT_VERSION_MAJOR} \"\${link}\" SYMBOLIC)
message(STATUS \"Installing: \${link}\")"
        COMPONENT library)
endif()
foreach(header IN LISTS ORMO_PUBLIC_HEADERS)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES "${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/ormo-csm/${folder}" COMPONENT development)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/ormo/nitf.hpp" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/ormo-csm/ormo"
        COMPONENT development)
install(
    FILES "${PROJECT_BINARY_DIR}/include/ormo_csm.h" "${PROJECT_BINARY_DIR}/include/ormo_nitf.h"
          "${PROJECT_BINARY_DIR}/include/ormo_csm_version.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/ormo-csm"
    COMPONENT development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/schemas/raster" DESTINATION "${CMAKE_INSTALL_DATADIR}/ormo-csm/schemas"
        COMPONENT development)
if(TARGET ormo-nitf)
    install(TARGETS ormo-nitf RUNTIME COMPONENT tools)
endif()

set(ORMO_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/OrmoCsm")
install(
    EXPORT OrmoCsmTargets
    NAMESPACE Ormo::
    DESTINATION "${ORMO_PACKAGE_DIR}"
    COMPONENT development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/OrmoCsmConfig.cmake.in"
                              "${PROJECT_BINARY_DIR}/OrmoCsmConfig.cmake" INSTALL_DESTINATION "${ORMO_PACKAGE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrmoCsmConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/OrmoCsmConfig.cmake" "${PROJECT_BINARY_DIR}/OrmoCsmConfigVersion.cmake"
        DESTINATION "${ORMO_PACKAGE_DIR}" COMPONENT development)
set(ORMO_PC_PRIVATE_LIBS "-ldl")
if(ORMO_XML_PRODUCTS)
    string(APPEND ORMO_PC_PRIVATE_LIBS " -lexpat")
endif()
# Both find their prefix from the place where they lie.
file(RELATIVE_PATH ORMO_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file("${PROJECT_SOURCE_DIR}/cmake/ormo-csm.pc.in" "${PROJECT_BINARY_DIR}/ormo-csm.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/ormo-csm.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
if(TARGET ormo_csm_gdal)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/ormo-csm-gdal.pc.in" "${PROJECT_BINARY_DIR}/ormo-csm-gdal.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/ormo-csm-gdal.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
            COMPONENT development)
endif()
include(OrmoPackages)
