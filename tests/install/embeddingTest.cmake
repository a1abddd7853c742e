# Installs BUILD, builds SOURCE/examples/embedding against the installed files in both ways, and compares what it prints.

cmake_minimum_required(VERSION 3.25)

set(work ${BUILD}/tests/install/work)
set(prefix ${work}/prefix)
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work})

function(run)
    execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${work} OUTPUT_VARIABLE output ERROR_VARIABLE output
                    RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        string(JOIN " " command ${ARGN})
        message(FATAL_ERROR "${command}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(runExample program)
    run(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${prefix}/${LIBDIR} ${program})
    file(READ ${SOURCE}/examples/embedding/expected.txt expected)
    if(NOT output STREQUAL expected)
        message(FATAL_ERROR "${program} printed\n${output}\ninstead of\n${expected}")
    endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})

run(${CMAKE_COMMAND} -S ${SOURCE}/examples/embedding -B ${work}/package -G Ninja -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_CXX_COMPILER=${COMPILER} "-D CMAKE_CXX_FLAGS=${FLAGS}")
run(${CMAKE_COMMAND} --build ${work}/package)
runExample(${work}/package/embedding)

set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run(pkg-config --cflags --libs calhost)
string(STRIP "${output}" flags)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${COMPILER} -std=c++20 ${FLAGS} ${SOURCE}/examples/embedding/main.cpp -o ${work}/embedding ${flags})
runExample(${work}/embedding)
