# Installs BUILD, builds the examples of SOURCE against the installed files, with the CMake package and with pkg-config, and
# compares what they print. The one over Qt is left out where BUILD has no Qt.

cmake_minimum_required(VERSION 3.25)

set(work ${BUILD}/tests/install/work)
set(prefix ${work}/prefix)
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work})

function(run)
    execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${work} OUTPUT_VARIABLE output ERROR_VARIABLE errors
                    RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        string(JOIN " " command ${ARGN})
        message(FATAL_ERROR "${command}\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Runs a program in an environment without a display.
function(runExample example program)
    run(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${prefix}/${LIBDIR} QT_QPA_PLATFORM=offscreen ${program})
    file(READ ${SOURCE}/examples/${example}/expected.txt expected)
    if(NOT output STREQUAL expected)
        message(FATAL_ERROR "${program} printed\n${output}\ninstead of\n${expected}")
    endif()
endfunction()

function(buildWithPackage example program)
    run(${CMAKE_COMMAND} -S ${SOURCE}/examples/${example} -B ${work}/${example} -G Ninja
        -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${COMPILER} "-D CMAKE_CXX_FLAGS=${FLAGS}")
    run(${CMAKE_COMMAND} --build ${work}/${example})
    runExample(${example} ${work}/${example}/${program})
endfunction()

function(buildWithPkgConfig example)
    run(pkg-config --cflags --libs ${ARGN})
    string(STRIP "${output}" flags)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run(${COMPILER} -std=c++20 ${FLAGS} -fPIC ${SOURCE}/examples/${example}/main.cpp -o ${work}/${example}-pkg ${flags})
    runExample(${example} ${work}/${example}-pkg)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)

buildWithPackage(embedding embedding)
buildWithPkgConfig(embedding calhost)
if(EXISTS ${prefix}/${LIBDIR}/pkgconfig/calhostqt.pc)
    buildWithPackage(embedding-qt embeddingQt)
    buildWithPkgConfig(embedding-qt calhostqt calhost)
endif()
