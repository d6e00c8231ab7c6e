# A TagLib that is compiled like the code that is fuzzed. The build takes place while configuring:
# find_package needs an installed library.

set(lirra_taglib_archive ${lirra_cache}/taglib-2.0.2/src/taglib.tar)
set(lirra_taglib_folder ${CMAKE_BINARY_DIR}/taglib)
set(lirra_taglib_ignorelist ${CMAKE_SOURCE_DIR}/tests/fuzz/taglib.ignorelist)

function(lirra_run)
    execute_process(COMMAND ${ARGN} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Without ccache, which does not notice that the ignore list has changed.
function(lirra_build_instrumented_taglib)
    file(REMOVE_RECURSE ${lirra_taglib_folder})
    file(MAKE_DIRECTORY ${lirra_taglib_folder}/source)
    lirra_run(tar -xf ${lirra_taglib_archive} -C ${lirra_taglib_folder}/source --strip-components=1)
    lirra_run(
        ${CMAKE_COMMAND} -S ${lirra_taglib_folder}/source -B ${lirra_taglib_folder}/build -G Ninja
        -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} -DCMAKE_BUILD_TYPE=Debug
        -DCMAKE_CXX_FLAGS_DEBUG=${CMAKE_CXX_FLAGS_DEBUG} -DBUILD_SHARED_LIBS=OFF
        "-DCMAKE_CXX_FLAGS=-fsanitize=${LIRRA_SANITIZE} -fno-sanitize-recover=all \
-fno-omit-frame-pointer -fsanitize-ignorelist=${lirra_taglib_ignorelist}"
        -DBUILD_TESTING=OFF -DCMAKE_INSTALL_PREFIX=${lirra_taglib_folder}/installed)
    lirra_run(${CMAKE_COMMAND} --build ${lirra_taglib_folder}/build)
    lirra_run(${CMAKE_COMMAND} --install ${lirra_taglib_folder}/build)
    file(COPY_FILE ${lirra_taglib_ignorelist} ${lirra_taglib_folder}/ignorelist)
endfunction()

# Without the archive the system's library is used as it is.
if(EXISTS ${lirra_taglib_archive})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${lirra_taglib_ignorelist})
    file(SHA256 ${lirra_taglib_ignorelist} lirra_wanted)
    set(lirra_present "")
    if(EXISTS ${lirra_taglib_folder}/ignorelist)
        file(SHA256 ${lirra_taglib_folder}/ignorelist lirra_present)
    endif()
    if(NOT lirra_wanted STREQUAL lirra_present)
        message(STATUS "Building TagLib with sanitizers")
        lirra_build_instrumented_taglib()
    endif()
    list(PREPEND CMAKE_PREFIX_PATH ${lirra_taglib_folder}/installed)
endif()
