# Settings that every target of the project shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

option(QNCAL_WERROR "Treat compiler warnings as errors" ${PROJECT_IS_TOP_LEVEL})
option(QNCAL_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(QNCAL_COVERAGE "Build with coverage counters" OFF)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without this ccache keeps nothing that uses a precompiled header.
    set(sloppiness pch_defines,time_macros,include_file_mtime,include_file_ctime)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=${sloppiness} ${CCACHE_PROGRAM})
endif()

add_library(qncalOptions INTERFACE)
target_compile_options(qncalOptions INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                              -Woverloaded-virtual -Wconversion -Wno-sign-conversion
                                              -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # GCC 12 warns without cause on optimised string concatenation (GCC bugs 105329 and 105651).
    target_compile_options(qncalOptions INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
endif()
if(QNCAL_WERROR)
    target_compile_options(qncalOptions INTERFACE -Werror)
endif()
if(QNCAL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(QNCAL_BUILD_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(QNCAL_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

# All sources of some folders, found again whenever one is added.
function(qncal_sources variable)
    set(found)
    foreach(folder IN LISTS ARGN)
        file(GLOB matches CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
        list(APPEND found ${matches})
    endforeach()
    set(${variable} ${found} PARENT_SCOPE)
endfunction()
