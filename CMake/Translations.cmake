# The texts in other languages. FOLDER/Translations/NAME_LANGUAGE.ts, kept by Qt's Linguist tools, becomes
# Translations/NAME_LANGUAGE.qm in a resource archive. The target update_translations brings the files up to date
# with the sources.

# Whose texts they are: a folder of sources, and the translations' path and name without the language.
set(VTWIDGETS_TRANSLATIONS
    Source/Common=Source/Translations/VTWidgetsLite
    Applications/Gallery=Applications/Gallery/Translations/vtwidgets-gallery)

find_package(Qt6 6.4 QUIET COMPONENTS LinguistTools)
if(NOT Qt6LinguistTools_FOUND AND CMAKE_CROSSCOMPILING AND QT_HOST_PATH_CMAKE_DIR)
    # The tools run on this machine.
    find_package(Qt6LinguistTools QUIET PATHS ${QT_HOST_PATH_CMAKE_DIR}/Qt6LinguistTools NO_DEFAULT_PATH
        NO_CMAKE_FIND_ROOT_PATH)
endif()
if(NOT Qt6LinguistTools_FOUND)
    message(STATUS "Without translations, as Qt's lrelease was not found (on Debian: apt-get install qt6-l10n-tools)")
endif()

# vtwidgets_translations(OUT NAME): the compiled files of FOLDER/NAME_*.ts, as sources for qt_add_resources.
function(vtwidgets_translations out name)
    set(compiled)
    if(Qt6LinguistTools_FOUND)
        file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${name}_*.ts)
        file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/Translations)
        foreach(source ${sources})
            cmake_path(GET source STEM base)
            set(file ${CMAKE_CURRENT_BINARY_DIR}/Translations/${base}.qm)
            add_custom_command(OUTPUT ${file}
                COMMAND Qt6::lrelease -silent ${source} -qm ${file}
                DEPENDS ${source}
                COMMENT "Compiling ${base}.qm" VERBATIM)
            set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS Translations/${base}.qm)
            list(APPEND compiled ${file})
        endforeach()
    endif()
    set(${out} ${compiled} PARENT_SCOPE)
endfunction()

if(Qt6LinguistTools_FOUND)
    set(commands)
    foreach(translation ${VTWIDGETS_TRANSLATIONS})
        string(REPLACE "=" ";" translation ${translation})
        list(GET translation 0 folder)
        list(GET translation 1 name)
        file(GLOB files ${PROJECT_SOURCE_DIR}/${name}_*.ts)
        # Without line numbers, which would change with every change of the sources.
        list(APPEND commands COMMAND Qt6::lupdate -locations none -no-obsolete ${folder} -ts ${files})
    endforeach()
    add_custom_target(update_translations ${commands} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} VERBATIM)
endif()
