# How every target of this project is compiled, and the one function that makes a layer.

function(lirra_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_23)
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_compile_definitions(
        ${target}
        PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                QT_NO_URL_CAST_FROM_STRING
                # Qt 6.4 is the oldest that will do: what later ones deprecate is still used. The
                # first name is that of Qt 6.4, the second that of later versions.
                QT_DEPRECATED_WARNINGS_SINCE=0x060400 QT_WARN_DEPRECATED_UP_TO=0x060400)
    target_compile_options(
        ${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
                          -fno-omit-frame-pointer)
    if(LIRRA_SANITIZE)
        target_compile_options(
            ${target} PUBLIC -fsanitize=${LIRRA_SANITIZE} -fno-sanitize-recover=all)
        target_link_options(${target} PUBLIC -fsanitize=${LIRRA_SANITIZE})
    endif()
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
endfunction()

# lirra_layer(NAME [LINKS targets...] [RESOURCES files...])
#
# Makes the static library lirra_NAME from the sources of the current folder. LINKS names the layers
# above it and the libraries it uses. RESOURCES, relative to resources/, are compiled in below :/lirra.
function(lirra_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "LINKS;RESOURCES")
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    add_library(lirra_${name} STATIC ${sources})
    lirra_compile_options(lirra_${name})
    target_link_libraries(lirra_${name} PUBLIC ${layer_LINKS})
    if(layer_RESOURCES)
        list(TRANSFORM layer_RESOURCES PREPEND ${CMAKE_SOURCE_DIR}/resources/)
        qt_add_resources(
            lirra_${name} lirra_${name} PREFIX /lirra BASE ${CMAKE_SOURCE_DIR}/resources
            FILES ${layer_RESOURCES})
    endif()
endfunction()
