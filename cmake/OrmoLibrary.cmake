# The core: every floor from foundation/ to isd/, without GDAL.
file(
    GLOB_RECURSE
    ORMO_CORE_SOURCES
    CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/foundation/*.cpp"
    "${PROJECT_SOURCE_DIR}/fields/*.cpp"
    "${PROJECT_SOURCE_DIR}/raster/*.cpp"
    "${PROJECT_SOURCE_DIR}/tre/*.cpp"
    "${PROJECT_SOURCE_DIR}/segments/*.cpp"
    "${PROJECT_SOURCE_DIR}/nitf/*.cpp"
    "${PROJECT_SOURCE_DIR}/isd/*.cpp")
list(FILTER ORMO_CORE_SOURCES EXCLUDE REGEX "/raster/gdal/")

# Compiled once; the shared library is what users get, the static archive lets the tests reach internals.
add_library(ormo_csm_objects OBJECT ${ORMO_CORE_SOURCES})
ormo_library_settings(ormo_csm_objects)
target_compile_definitions(ormo_csm_objects PRIVATE ORMO_CSM_BUILDING)
target_link_libraries(ormo_csm_objects PUBLIC ormo_csmapi)
# The name under which the core loads the library that reads compressed pixels, and the program the one for tables.
set(ORMO_GDAL_LIBRARY
    "${CMAKE_SHARED_LIBRARY_PREFIX}ormo_csm_gdal${CMAKE_SHARED_LIBRARY_SUFFIX}.${PROJECT_VERSION_MAJOR}")
target_compile_definitions(ormo_csm_objects PRIVATE ORMO_GDAL_LIBRARY="${ORMO_GDAL_LIBRARY}")

# Documents of radar products are read with expat, which stays inside.
if(ORMO_XML_PRODUCTS)
    find_package(EXPAT REQUIRED)
    target_compile_definitions(ormo_csm_objects PRIVATE ORMO_XML_PRODUCTS)
    target_link_libraries(ormo_csm_objects PRIVATE EXPAT::EXPAT)
    set(ORMO_XML_LIBRARY EXPAT::EXPAT)
endif()

add_library(ormo_csm)
add_library(Ormo::csm ALIAS ormo_csm)
ormo_library_settings(ormo_csm)
target_link_libraries(ormo_csm PRIVATE $<BUILD_INTERFACE:ormo_csm_objects>)
target_link_libraries(ormo_csm PUBLIC ormo_csmapi PRIVATE ${CMAKE_DL_LIBS} ${ORMO_XML_LIBRARY})
target_compile_features(ormo_csm PUBLIC cxx_std_17)
if(BUILD_SHARED_LIBS)
    # The plug-in stands in a list of another library, and so do companions' objects in this one: it stays loaded.
    target_link_options(ormo_csm PRIVATE -Wl,-z,nodelete)
endif()
set_target_properties(ormo_csm PROPERTIES EXPORT_NAME csm LINKER_LANGUAGE CXX)
if(BUILD_SHARED_LIBS AND NOT APPLE)
    set(ORMO_CSM_MAP "${PROJECT_SOURCE_DIR}/cmake/ormo_csm.map")
    target_link_options(ormo_csm PRIVATE "LINKER:--version-script=${ORMO_CSM_MAP}")
    set_target_properties(ormo_csm PROPERTIES LINK_DEPENDS "${ORMO_CSM_MAP}")
endif()
target_include_directories(
    ormo_csm PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/ormo-csm>)

if(ORMO_BUILD_TESTS OR ORMO_BUILD_BENCH OR ORMO_BUILD_FUZZ)
    add_library(ormo_csm_internal STATIC)
    target_link_libraries(ormo_csm_internal PUBLIC ormo_csm_objects ormo_settings ormo_csmapi ${CMAKE_DL_LIBS}
                                                   ${ORMO_XML_LIBRARY})
    set_target_properties(ormo_csm_internal PROPERTIES LINKER_LANGUAGE CXX)
    # Who sees the internals sees them as the library does, where they are hidden.
    target_compile_options(ormo_csm_internal INTERFACE -fvisibility=hidden)
endif()
