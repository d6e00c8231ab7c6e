# Not just any python3: mutagen belongs to the system's.
find_program(LIRRA_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)

# lirra_python_tests(NAME)
#
# Makes a test of every *_test.py in the current folder, named after NAME and the file. They run
# lirra-cli.
function(lirra_python_tests name)
    file(GLOB scripts CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*_test.py)
    foreach(script IN LISTS scripts)
        cmake_path(GET script STEM stem)
        string(REPLACE "_test" "" subject ${stem})
        add_test(NAME ${name}.${subject} COMMAND ${LIRRA_PYTHON} ${script})
        set_tests_properties(
            ${name}.${subject}
            PROPERTIES
                ENVIRONMENT
                "LIRRA_CLI=$<TARGET_FILE:lirra-cli>;PYTHONPATH=${CMAKE_SOURCE_DIR}/tests/support;PYTHONDONTWRITEBYTECODE=1"
                TIMEOUT 300)
    endforeach()
endfunction()
