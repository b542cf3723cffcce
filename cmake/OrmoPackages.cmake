# Debian packages, one per component: cpack -G DEB in the build directory of the preset "package".
if(NOT PROJECT_IS_TOP_LEVEL)
    return()
endif()

set(CPACK_PACKAGE_NAME ormo-csm)
set(CPACK_PACKAGE_CONTACT "The Ormo CSM developers <developers@ormo-csm.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_COMPONENTS_ALL library development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}" "${PROJECT_BINARY_DIR}/csmapi")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# The linker's cache is renewed by a trigger.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")
set(CPACK_DEBIAN_GDAL_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "libormo-csm${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
    "Reads NITF 2.0, NITF 2.1 and NSIF 1.0 files: headers, every segment,
 tagged record extensions and graphics. A CSM plug-in comes along.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libormo-csm-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers, CMake package, pkg-config files and the schemas of the documents.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)

if(TARGET ormo_csm_gdal)
    list(APPEND CPACK_COMPONENTS_ALL gdal)
    list(APPEND CPACK_COMPONENT_DEVELOPMENT_DEPENDS gdal)
    set(CPACK_DEBIAN_GDAL_PACKAGE_NAME "libormo-csm-gdal${PROJECT_VERSION_MAJOR}")
    set(CPACK_DEBIAN_GDAL_PACKAGE_SECTION libs)
    set(CPACK_COMPONENT_GDAL_DESCRIPTION
        "What the library loads when compressed pixels are asked for or a
 catalogue is written.")
    set(CPACK_COMPONENT_GDAL_DEPENDS library)
endif()
if(TARGET ormo-nitf)
    list(APPEND CPACK_COMPONENTS_ALL tools)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ormo-nitf)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION graphics)
    set(CPACK_COMPONENT_TOOLS_DESCRIPTION
        "A program that tells what a file holds, validates it, writes it as JSON
 or XML, takes segments out and draws previews.")
    set(CPACK_COMPONENT_TOOLS_DEPENDS library)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS "${CPACK_DEBIAN_GDAL_PACKAGE_NAME}")
endif()

# What every Debian package has beside its files.
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    foreach(component IN LISTS CPACK_COMPONENTS_ALL)
        string(TOUPPER "${component}" upper)
        set(folder "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
        install(FILES "${PROJECT_SOURCE_DIR}/cmake/debian/copyright" DESTINATION "${folder}" COMPONENT ${component})
        install(
            FILES "${PROJECT_BINARY_DIR}/changelog.gz"
            DESTINATION "${folder}"
            COMPONENT ${component})
    endforeach()
    file(READ "${PROJECT_SOURCE_DIR}/CHANGELOG.md" changes)
    file(WRITE "${PROJECT_BINARY_DIR}/changelog" "${changes}")
    execute_process(COMMAND gzip -9nf changelog WORKING_DIRECTORY "${PROJECT_BINARY_DIR}" COMMAND_ERROR_IS_FATAL ANY)
endif()
include(CPack)
