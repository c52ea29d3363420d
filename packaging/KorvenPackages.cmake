# The Debian packages: programs apart from what is the same on every machine. ./package builds them from
# two build trees, this one and that of the Python module.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME korven32)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "KORVEN 32 maintainers <korven32@packages.local.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL desktop cli data python)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${CMAKE_BINARY_DIR};${PROJECT_NAME};ALL;/"
    "${PROJECT_SOURCE_DIR}/build/python;${PROJECT_NAME};ALL;/")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

# korven_package(<component> <package> <section> <architecture> <depends> <summary> <description>)
function(korven_package component package section architecture depends summary description)
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
    if(architecture STREQUAL all)
        set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all PARENT_SCOPE)
        set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS OFF PARENT_SCOPE)
    endif()
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
endfunction()

set(whole "KORVEN 32 follows diaphragm walls, pile walls and sheet piles through the
stages of an excavation, as a beam between two sides of elastic and plastic
soil, and checks the section in bending and shear.

")
# Where fonts-liberation alone is installed the fonts of windows would be those of a typewriter.
korven_package(desktop korven32 science any
    "korven32-cli (= ${PROJECT_VERSION}), korven32-data (= ${PROJECT_VERSION}), qt6-translations-l10n, fonts-dejavu-core"
    "design of embedded retaining walls"
    "${whole}This package has the desktop program.")
korven_package(cli korven32-cli science any
    "korven32-data (= ${PROJECT_VERSION}), fonts-liberation"
    "design of embedded retaining walls - command line"
    "${whole}This package has the program for the command line, which computes, draws
and writes all documents.")
korven_package(data korven32-data science all "fonts-liberation"
    "design of embedded retaining walls - data"
    "${whole}This package has what the programs share: texts, help, hatches, examples,
verification and documents.")
korven_package(python python3-korven32 python any
    "korven32-data (= ${PROJECT_VERSION}), python3 (>= 3.11), python3 (<< 3.12), python3-numpy, python3-pandas"
    "design of embedded retaining walls - Python module"
    "${whole}This package has the module for Python.")
# By it the help opens the documents; a desktop has it.
set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS xdg-utils)
# An example of the documents draws with it.
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS python3-matplotlib)

include(CPack)
