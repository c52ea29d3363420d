# The rules that every target of the house follows, stated once.

# The digits must be the same on every machine and in every build type: no contraction of a*b+c, no
# fast-math. Everything else is the usual net of warnings.
add_library(korven_rules INTERFACE)
target_compile_features(korven_rules INTERFACE cxx_std_20)
target_compile_options(korven_rules INTERFACE
    -ffp-contract=off -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    # g++ 12 takes "text" + string for copying memory onto itself (GCC bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    # clang counts this to -Wconversion, g++ does not: indices are ints here, as in the formulas.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
target_include_directories(korven_rules INTERFACE ${PROJECT_SOURCE_DIR}/src)

# What hardens the release: a stack, a copy or an index run over ends the program where it happens,
# and nothing that is called through a table can be bent once the program has started. Tests and the
# programs of the build go without: _FORTIFY_SOURCE asks for an optimised build.
# A module for Python is a shared library: what goes into it has to lie anywhere, not only in a program.
set(korven_position -fPIE)
if(KORVEN_PYTHON)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    set(korven_position -fPIC)
endif()
set(korven_hardened_code
    "$<$<CONFIG:Release>:${korven_position};-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-D_GLIBCXX_ASSERTIONS>")
set(korven_hardened_link "$<$<CONFIG:Release>:-pie;LINKER:-z,relro,-z,now>")

# korven_room(<room> <known>...) declares the room src/<room> and the rooms whose headers it includes,
# no more and no less: tests/architecture reads the same lists and compares them with the includes.
#
# A room at the top is the static library korven_<room>, made from all sources of its folder but
# main.cpp; a room inside another (analysis/solver) goes into the library of the outer one. A file
# belongs to a room by lying there, so that no list can forget it. Rooms in the list korven_unbuilt are
# declared and no more.
function(korven_room room)
    string(REGEX REPLACE "/.*" "" outer ${room})
    string(REPLACE ";" " " known "${ARGN}")
    set_property(GLOBAL APPEND PROPERTY korven_rooms "${room}: ${known}")
    if(room IN_LIST korven_unbuilt)
        return()
    endif()
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    set(scope PUBLIC)
    if(TARGET korven_${outer})
        target_sources(korven_${outer} PRIVATE ${sources})
    elseif(sources)
        add_library(korven_${outer} STATIC ${sources})
        korven_precompile_room(${outer})
    else()
        set(scope INTERFACE)
        add_library(korven_${outer} INTERFACE)
    endif()
    target_link_libraries(korven_${outer} ${scope} korven_rules)
    if(NOT scope STREQUAL INTERFACE)
        target_compile_options(korven_${outer} PRIVATE ${korven_hardened_code})
    endif()
    foreach(other IN LISTS ARGN)
        string(REGEX REPLACE "/.*" "" library ${other})
        if(NOT library STREQUAL outer)
            target_link_libraries(korven_${outer} ${scope} korven_${library})
        endif()
    endforeach()
endfunction()

# korven_program(<name> <room>) makes the program whose main.cpp lies in src/<room>.
function(korven_program name room)
    add_executable(${name} ${room}/main.cpp)
    target_link_libraries(${name} PRIVATE korven_${room})
    target_compile_options(${name} PRIVATE ${korven_hardened_code})
    target_link_options(${name} PRIVATE ${korven_hardened_link})
    add_dependencies(${name} korven_data)
endfunction()

# Under a sanitizer a program takes longer to start than most tests to run. Where tests start their own program
# again each keeps a process: a share in the environment would leave the second one without its test.
set(KORVEN_SHARDS 0 CACHE STRING "Processes that share the tests of a program; 0: one for each test")

# korven_test(<name>) makes the test program of the folder tests/<name> and of the folders in it, and
# hands its tests to ctest.
function(korven_test name)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    add_executable(${name}_test ${sources})
    target_link_libraries(${name}_test PRIVATE ${ARGN} korven_test_support)
    # The optimiser's work on code that runs once was half the time of a fresh build.
    target_compile_options(${name}_test PRIVATE -O0)
    korven_precompile_test(${name}_test ${ARGN})
    set(properties TIMEOUT 120 LABELS ${name})
    if(KORVEN_TEST_ENVIRONMENT)
        list(APPEND properties ENVIRONMENT ${KORVEN_TEST_ENVIRONMENT})
    endif()
    if(KORVEN_SHARDS EQUAL 0 OR name MATCHES "^(base|shell|desktop)$")
        gtest_discover_tests(${name}_test DISCOVERY_TIMEOUT 60 PROPERTIES ${properties})
        return()
    endif()
    list(APPEND properties TIMEOUT 1200)  # in place of the 120 s of a single test
    math(EXPR last "${KORVEN_SHARDS} - 1")
    foreach(shard RANGE ${last})
        add_test(NAME ${name}.${shard} COMMAND ${name}_test)
        set_tests_properties(${name}.${shard} PROPERTIES ${properties})
        set_property(TEST ${name}.${shard} APPEND PROPERTY ENVIRONMENT
            GTEST_TOTAL_SHARDS=${KORVEN_SHARDS} GTEST_SHARD_INDEX=${shard})
    endforeach()
endfunction()
