# A program for Windows carries its manifest, its icon, and its name and version. The icon is drawn by a build for the
# system that builds, which can run what it has built.
set(BANNERSMITH_ICON ${PROJECT_SOURCE_DIR}/build/release/bannersmith.ico CACHE FILEPATH "The icon of the programs for Windows")

function(describe_program name)
    if(NOT WIN32)
        return()
    endif()
    set(PROGRAM ${name})
    string(REPLACE "." "," NUMBERS ${PROJECT_VERSION})
    set(MANIFEST ${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc @ONLY)
    target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
endfunction()
