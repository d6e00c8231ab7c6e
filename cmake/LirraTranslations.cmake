# Compiles the texts of other languages.

find_program(LIRRA_LRELEASE lrelease HINTS /usr/lib/qt6/bin REQUIRED)

# lirra_translations(TARGET)
#
# Compiles resources/translations/*.ts into the target, below :/lirra/translations.
function(lirra_translations target)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/translations/*.ts)
    set(folder ${CMAKE_BINARY_DIR}/translations)
    file(MAKE_DIRECTORY ${folder})
    foreach(source IN LISTS sources)
        cmake_path(GET source STEM name)
        set(compiled ${folder}/${name}.qm)
        add_custom_command(
            OUTPUT ${compiled}
            COMMAND ${LIRRA_LRELEASE} -silent ${source} -qm ${compiled}
            DEPENDS ${source}
            COMMENT "Compiling the translation ${name}")
        list(APPEND all ${compiled})
    endforeach()
    qt_add_resources(${target} ${target}_translations PREFIX /lirra/translations BASE ${folder}
                     FILES ${all})
endfunction()
