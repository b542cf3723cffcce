# The target "documentation": the public classes, the guides of docs/ and one page per TRE, as HTML in build/.../html.
find_package(Doxygen QUIET)
if(NOT PROJECT_IS_TOP_LEVEL OR NOT DOXYGEN_FOUND OR NOT TARGET ormo-nitf)
    return()
endif()
set(ORMO_TRE_PAGES "${PROJECT_BINARY_DIR}/pages")
add_custom_target(
    tre-pages
    COMMAND "${PROJECT_SOURCE_DIR}/docs/make-tre-pages.sh" "$<TARGET_FILE:ormo-nitf>" "${ORMO_TRE_PAGES}"
    VERBATIM)
add_dependencies(tre-pages ormo-nitf)

file(GLOB ORMO_GUIDES "${PROJECT_SOURCE_DIR}/docs/*.md")
list(TRANSFORM ORMO_PUBLIC_HEADERS PREPEND "${PROJECT_SOURCE_DIR}/" OUTPUT_VARIABLE ORMO_DOCUMENTED)
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE "${PROJECT_SOURCE_DIR}/README.md")
set(DOXYGEN_PREDEFINED ORMO_CSM_API= ORMO_CSM_LOCAL=)
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_STRIP_FROM_PATH "${PROJECT_SOURCE_DIR}" "${ORMO_TRE_PAGES}")
set(DOXYGEN_EXTRACT_ALL YES)
set(DOXYGEN_WARN_IF_UNDOCUMENTED NO)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_TOC_INCLUDE_HEADINGS 3)
doxygen_add_docs(documentation ${ORMO_DOCUMENTED} "${PROJECT_SOURCE_DIR}/ormo/nitf.hpp" "${PROJECT_SOURCE_DIR}/README.md"
                 ${ORMO_GUIDES} "${ORMO_TRE_PAGES}")
add_dependencies(documentation tre-pages)
