# Compiler settings shared by this project's own targets. Nothing here is global: every target asks for it.
find_program(ORMO_CCACHE ccache)
if(ORMO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${ORMO_CCACHE}")
endif()

add_library(ormo_settings INTERFACE)
target_compile_features(ormo_settings INTERFACE cxx_std_20)
target_include_directories(ormo_settings INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(
    ormo_settings
    INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
              -Woverloaded-virtual -Wimplicit-fallthrough -Wundef
              $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>
              # GCC 12 warns of its own string at -O3 (its bug 105651).
              $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>,$<CONFIG:Release>>:-Wno-restrict>
              $<$<BOOL:${ORMO_WARNINGS_AS_ERRORS}>:-Werror>)
if(ORMO_BUILD_FUZZ)
    # The fuzzer is to see every branch of the library, not only those of its own target.
    target_compile_options(ormo_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(ORMO_SANITIZE)
    target_compile_options(ormo_settings INTERFACE "-fsanitize=${ORMO_SANITIZE}" -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
    target_link_options(ormo_settings INTERFACE "-fsanitize=${ORMO_SANITIZE}")
else()
    # What the compiler and the linker of the target know of these; they differ between processors.
    include(CheckCXXCompilerFlag)
    include(CheckLinkerFlag)
    foreach(flag IN ITEMS -fstack-protector-strong -fcf-protection -mbranch-protection=standard)
        string(MAKE_C_IDENTIFIER "ORMO_HAS${flag}" has)
        check_cxx_compiler_flag("${flag} -Werror" ${has})
        if(${has})
            target_compile_options(ormo_settings INTERFACE "${flag}")
        endif()
    endforeach()
    target_compile_definitions(ormo_settings INTERFACE _GLIBCXX_ASSERTIONS
                                                       $<$<NOT:$<CONFIG:Debug>>:_FORTIFY_SOURCE=2>)
    check_linker_flag(CXX "-Wl,-z,relro,-z,now" ORMO_HAS_LINK_NOW)
    if(ORMO_HAS_LINK_NOW)
        target_link_options(ormo_settings INTERFACE "-Wl,-z,relro,-z,now")
    endif()
endif()

# Hidden symbols by default; what is public carries ORMO_CSM_API.
function(ormo_library_settings aTarget)
    target_link_libraries(${aTarget} PRIVATE $<BUILD_INTERFACE:ormo_settings>)
    set_target_properties(
        ${aTarget}
        PROPERTIES CXX_EXTENSIONS OFF
                   CXX_VISIBILITY_PRESET hidden
                   VISIBILITY_INLINES_HIDDEN ON
                   POSITION_INDEPENDENT_CODE ON
                   VERSION ${PROJECT_VERSION}
                   SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()
