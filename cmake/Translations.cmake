# vidora_add_translations(TARGET): compiles translations/*.ts and puts them into a target as resources, so that the program
# finds them wherever it lies.
find_program(LRELEASE lrelease PATHS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)

function(vidora_add_translations target)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/*.ts)
    set(compiled)
    foreach(source ${sources})
        cmake_path(GET source STEM name)
        set(file ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
        add_custom_command(OUTPUT ${file} COMMAND ${LRELEASE} -silent ${source} -qm ${file} DEPENDS ${source} VERBATIM)
        list(APPEND compiled ${file})
    endforeach()
    qt_add_resources(${target} translations PREFIX /translations BASE ${CMAKE_CURRENT_BINARY_DIR} FILES ${compiled})
endfunction()
