# The headers that many sources share, parsed once for all of them: reading them is most of what a fresh
# build does. OFF unless asked for, since it hides an include that a source forgot: some build has to do
# without. TESTS does it for the test programs alone, ON for the rooms too.
set(KORVEN_PRECOMPILED OFF CACHE STRING "Precompile the headers that many sources share: OFF, TESTS, ON")
set_property(CACHE KORVEN_PRECOMPILED PROPERTY STRINGS OFF TESTS ON)

# Without the option a compiler cache could not see which precompiled header an object was made with, and
# would keep none of them.
if(KORVEN_PRECOMPILED)
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

set(korven_standard_headers
    <algorithm> <array> <cassert> <charconv> <cmath> <cstdint> <filesystem> <fstream> <functional>
    <iterator> <limits> <map> <memory> <numbers> <optional> <set> <span> <sstream> <string>
    <string_view> <system_error> <utility> <variant> <vector>)
# In brackets, since CMake looks for a name in quotes in the folder that asks for it.
set(korven_own_headers
    <base/code_page.hpp> <base/file_error.hpp> <base/files.hpp> <base/number_text.hpp>
    <base/translated_texts.hpp> <project/project_data.hpp> <project/shown_number.hpp>)
set(korven_test_headers
    <gtest/gtest.h> <support/dialog_double.hpp> <support/sample_projects.hpp>
    <support/sample_sections.hpp> <support/temporary_folder.hpp>)

# Rooms that know Qt, and the libraries of korven32c, are compiled with options of their own, which their
# precompiled headers must share.
set(korven_apart_device <QFont> <QImage> <QPainter> <QPolygonF> <QString>)
set(korven_apart_shell <QtWidgets>)
set(korven_apart_batch <nlohmann/json.hpp>)

# korven_shared_headers(<name> <header>...) makes the precompiled header that targets without headers
# of their own use, compiled with the options of <name>'s users.
function(korven_shared_headers name)
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE korven_rules)
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

# korven_precompile_room(<room>): the library of a room at the top uses precompiled headers.
function(korven_precompile_room room)
    if(NOT KORVEN_PRECOMPILED OR KORVEN_PRECOMPILED STREQUAL "TESTS")
        return()
    endif()
    if(room STREQUAL "desktop")
        target_precompile_headers(korven_desktop REUSE_FROM korven_shell)
        return()
    endif()
    if(korven_apart_${room})
        target_precompile_headers(korven_${room} PRIVATE
            ${korven_standard_headers} ${korven_own_headers} ${korven_apart_${room}})
        return()
    endif()
    if(NOT TARGET korven_room_headers)
        korven_shared_headers(korven_room_headers ${korven_standard_headers} ${korven_own_headers})
    endif()
    target_precompile_headers(korven_${room} REUSE_FROM korven_room_headers)
endfunction()

# korven_precompile_test(<target> <library>...): so does a test program that links these libraries.
function(korven_precompile_test target)
    # The few tests of all windows together would not earn what headers of their own cost.
    if(NOT KORVEN_PRECOMPILED OR "korven_desktop" IN_LIST ARGN)
        return()
    endif()
    set(headers ${korven_test_headers} ${korven_standard_headers} ${korven_own_headers})
    list(APPEND korven_apart_shell <QtTest>)
    foreach(room shell device batch)
        if("korven_${room}" IN_LIST ARGN)
            target_precompile_headers(${target} PRIVATE ${headers} ${korven_apart_${room}})
            return()
        endif()
    endforeach()
    if(NOT TARGET korven_test_headers)
        korven_shared_headers(korven_test_headers ${headers})
        target_link_libraries(korven_test_headers PRIVATE korven_test_support)
        target_compile_options(korven_test_headers PRIVATE -O0)  # as the tests, or they can't use it
    endif()
    target_precompile_headers(${target} REUSE_FROM korven_test_headers)
endfunction()
