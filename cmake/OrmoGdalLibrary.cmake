# What needs GDAL stands in a library of its own, so that reading metadata never loads libgdal.
find_package(GDAL 3 REQUIRED)
file(GLOB ORMO_GDAL_SOURCES CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/raster/gdal/*.cpp"
     "${PROJECT_SOURCE_DIR}/nitf/NITFFactory.cpp")
if(ORMO_GDAL_SOURCES)
    add_library(ormo_csm_gdal ${ORMO_GDAL_SOURCES})
    add_library(Ormo::csm_gdal ALIAS ormo_csm_gdal)
    ormo_library_settings(ormo_csm_gdal)
    target_compile_definitions(ormo_csm_gdal PRIVATE ORMO_CSM_BUILDING)
    target_link_libraries(ormo_csm_gdal PUBLIC ormo_csm PRIVATE GDAL::GDAL)
    set_target_properties(ormo_csm_gdal PROPERTIES EXPORT_NAME csm_gdal)
endif()
