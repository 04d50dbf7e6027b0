# What "cmake --install" puts where, and the .deb files that CPack makes of it. Four components: Library (what a
# program needs to run, with the style plugin), Development (headers, CMake package, pkg-config file, theme
# checker, plugin for Qt Designer), Gallery, PhotoDesk.

include(CMakePackageConfigHelpers)

set(VTWIDGETS_QT_PLUGIN_DIR ${CMAKE_INSTALL_LIBDIR}/qt6/plugins CACHE STRING
    "Where the plugins go below the prefix; on Debian the folder that Qt itself reads when the prefix is /usr")
set(VTWIDGETS_FONT_NOTICES "" CACHE STRING
    "Files with the licences of the embedded fonts; empty takes those of Debian's font packages")

set(headerDir ${CMAKE_INSTALL_INCLUDEDIR}/VTWidgetsLite)
set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/VTWidgetsLite)
set(documentDir ${CMAKE_INSTALL_DATADIR}/doc/VTWidgetsLite)

# How to get from one installed folder to another, for library search paths that survive a move of the prefix.
function(vtwidgets_relative_rpath target fromDir)
    if(APPLE)
        set(origin @loader_path)
    else()
        set(origin $ORIGIN)
    endif()
    file(RELATIVE_PATH way /${fromDir} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${origin}/${way}")
endfunction()

# Libraries. The siblings join when they are ours.
set(libraries VTWidgetsLite)
if(VTWIDGETS_BUNDLED_SIBLINGS)
    list(APPEND libraries VTQtCoreLite VTCore19 VTCoreFoundation19)
endif()
foreach(library ${libraries})
    vtwidgets_relative_rpath(${library} ${CMAKE_INSTALL_LIBDIR})
    target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${headerDir}>)
endforeach()
install(TARGETS ${libraries} EXPORT VTWidgetsLiteTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Library
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Library NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)

# Headers, in the folders that includes name. Each folder is on the search path as well, so that a consumer may
# write <VantraPalette.h>. What only the library's own sources use stays at home.
set(headerPatterns
    FILES_MATCHING
    PATTERN "*.h"
    PATTERN "*_p.h" EXCLUDE)
file(GLOB privateHeaders RELATIVE ${PROJECT_SOURCE_DIR}/Source/Common/Style
    ${PROJECT_SOURCE_DIR}/Source/Common/Style/*.h)
list(REMOVE_ITEM privateHeaders VantraStyle.h)
foreach(header ${privateHeaders})
    list(APPEND headerPatterns PATTERN "Style/${header}" EXCLUDE)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Source/Common/ DESTINATION ${headerDir} COMPONENT Development
    ${headerPatterns})
install(FILES ${PROJECT_BINARY_DIR}/Source/Common/VTWidgetsLiteVersion.h
    DESTINATION ${headerDir} COMPONENT Development)
set(headerFolders)
foreach(folder ${VTWIDGETS_FOLDERS})
    target_include_directories(VTWidgetsLite INTERFACE $<INSTALL_INTERFACE:${headerDir}/${folder}>)
    list(APPEND headerFolders ${folder})
endforeach()
if(VTWIDGETS_BUNDLED_SIBLINGS)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/Source/Platform/ DESTINATION ${headerDir} COMPONENT Development
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
    foreach(sibling VTQtCoreLite VTCore19 VTCoreFoundation19)
        target_include_directories(${sibling} INTERFACE $<INSTALL_INTERFACE:${headerDir}/${sibling}>)
        list(APPEND headerFolders ${sibling})
    endforeach()
endif()

# CMake package and pkg-config file.
install(EXPORT VTWidgetsLiteTargets NAMESPACE VTWidgets:: DESTINATION ${packageDir} COMPONENT Development)
configure_package_config_file(CMake/VTWidgetsLiteConfig.cmake.in
    ${PROJECT_BINARY_DIR}/VTWidgetsLiteConfig.cmake INSTALL_DESTINATION ${packageDir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VTWidgetsLiteConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VTWidgetsLiteConfig.cmake
    ${PROJECT_BINARY_DIR}/VTWidgetsLiteConfigVersion.cmake
    DESTINATION ${packageDir} COMPONENT Development)

set(pkgConfigFlags "-I\${includedir}/VTWidgetsLite")
foreach(folder ${headerFolders})
    string(APPEND pkgConfigFlags " -I\${includedir}/VTWidgetsLite/${folder}")
endforeach()
list(TRANSFORM libraries PREPEND -l OUTPUT_VARIABLE pkgConfigLibraries)
list(JOIN pkgConfigLibraries " " pkgConfigLibraries)
# Relative to the file itself, so that the prefix may move.
file(RELATIVE_PATH pkgConfigPrefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(CMake/VTWidgetsLite.pc.in ${PROJECT_BINARY_DIR}/VTWidgetsLite.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/VTWidgetsLite.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)

# Plugins and programs.
vtwidgets_relative_rpath(VantraStylePlugin ${VTWIDGETS_QT_PLUGIN_DIR}/styles)
install(TARGETS VantraStylePlugin
    LIBRARY DESTINATION ${VTWIDGETS_QT_PLUGIN_DIR}/styles COMPONENT Library)
if(TARGET VantraDesignerPlugin)
    vtwidgets_relative_rpath(VantraDesignerPlugin ${VTWIDGETS_QT_PLUGIN_DIR}/designer)
    install(TARGETS VantraDesignerPlugin
        LIBRARY DESTINATION ${VTWIDGETS_QT_PLUGIN_DIR}/designer COMPONENT Development)
endif()
if(TARGET vtwidgets-gallery)
    vtwidgets_relative_rpath(vtwidgets-gallery ${CMAKE_INSTALL_BINDIR})
    install(TARGETS vtwidgets-gallery RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Gallery)
endif()

# For writers of themes: the checker, and the schema for their editors.
if(TARGET vtwidgets-theme)
    vtwidgets_relative_rpath(vtwidgets-theme ${CMAKE_INSTALL_BINDIR})
    install(TARGETS vtwidgets-theme RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Development)
endif()
install(FILES Resources/Themes/theme.schema.json
    DESTINATION ${CMAKE_INSTALL_DATADIR}/VTWidgetsLite COMPONENT Development)

# Everything that an installation needs built, and nothing else.
add_custom_target(installed)
foreach(target ${libraries} VantraStylePlugin VantraDesignerPlugin vtwidgets-gallery vtwidgets-theme PhotoDesk)
    if(TARGET ${target})
        add_dependencies(installed ${target})
    endif()
endforeach()

if(TARGET PhotoDesk)
    # It has its own rules to install; they go into its component.
    vtwidgets_relative_rpath(PhotoDesk ${CMAKE_INSTALL_BINDIR})
endif()

# The fonts are inside the library, so their licences travel with it.
install(FILES README.md DESTINATION ${documentDir} COMPONENT Development)
install(DIRECTORY Documentation DESTINATION ${documentDir} COMPONENT Development
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.json")
set(fontNotices ${VTWIDGETS_FONT_NOTICES})
if(NOT fontNotices)
    foreach(font fonts-roboto-unhinted fonts-font-awesome)
        if(EXISTS /usr/share/doc/${font}/copyright)
            list(APPEND fontNotices /usr/share/doc/${font}/copyright)
        endif()
    endforeach()
endif()
if(NOT fontNotices)
    message(WARNING "No licences of the embedded fonts were found to install; name them with VTWIDGETS_FONT_NOTICES")
endif()
set(licenceDir ${documentDir}/fonts)
foreach(notice ${fontNotices})
    cmake_path(GET notice PARENT_PATH noticeFolder)
    cmake_path(GET noticeFolder FILENAME font)
    cmake_path(GET notice FILENAME noticeName)
    # /usr/share/doc may hold links, which would point nowhere on another machine.
    file(REAL_PATH ${notice} notice)
    install(FILES ${notice} DESTINATION ${licenceDir} COMPONENT Library RENAME ${font}.${noticeName})
endforeach()

# .deb files.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vtwidgetslite)
set(CPACK_PACKAGE_VENDOR "VTWidgetsLite developers")
set(CPACK_PACKAGE_CONTACT "VTWidgetsLite developers <vtwidgetslite@example.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "look and common controls of photo-editing Qt programs")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Library Development)
if(TARGET vtwidgets-gallery)
    list(APPEND CPACK_COMPONENTS_ALL Gallery)
endif()
if(TARGET PhotoDesk)
    list(APPEND CPACK_COMPONENTS_ALL PhotoDesk)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libvtwidgetslite${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvtwidgetslite-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qt6-base-dev (>= 6.4)")
set(CPACK_DEBIAN_GALLERY_PACKAGE_NAME vtwidgetslite-gallery)
set(CPACK_DEBIAN_GALLERY_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PHOTODESK_PACKAGE_NAME vtwidgetslite-photodesk)
set(CPACK_DEBIAN_PHOTODESK_PACKAGE_SECTION graphics)
include(CPack)
cpack_add_component(Library
    DESCRIPTION "The library, its sibling libraries and the style plugin Vantra. Tested with Qt 6.4 to 6.11.")
cpack_add_component(Development DEPENDS Library DESCRIPTION "Headers, CMake package, pkg-config file and the theme checker.")
cpack_add_component(Gallery DEPENDS Library DESCRIPTION "A program that shows everything the library has.")
cpack_add_component(PhotoDesk DEPENDS Library DESCRIPTION "A small photo editor that is built on the library.")
