# The resource archives. Fonts come from installed packages and go in under the names that VantraFont asks for.

set(VTWIDGETS_FONT_DIR "" CACHE PATH "Folder with the Roboto TTF files; empty looks in the system's font folders")
set(VTWIDGETS_ICON_FONT "" CACHE FILEPATH
    "TTF file of the icon font; empty takes the one of Debian's fonts-font-awesome")

function(vtwidgets_find_font out file package variable)
    # Fonts are the same for every system, so a cross-compiler's folders don't count.
    find_file(path NAMES ${file} NO_CACHE NO_CMAKE_FIND_ROOT_PATH
        HINTS ${VTWIDGETS_FONT_DIR}
        PATHS
            /usr/share/fonts/truetype/roboto/unhinted/RobotoTTF
            /usr/share/fonts/truetype/font-awesome
            /usr/local/share/fonts
            /Library/Fonts
        PATH_SUFFIXES truetype roboto)
    if(NOT path)
        message(FATAL_ERROR
            "The font file ${file} was not found. Install the package ${package} (on Debian: apt-get install "
            "${package}), or say where it lies with -D${variable}=...")
    endif()
    set(${out} ${path} PARENT_SCOPE)
endfunction()

function(vtwidgets_add_resources target)
    set(fonts)
    foreach(style Black BlackItalic Bold BoldItalic Light LightItalic Medium MediumItalic Regular Thin ThinItalic)
        vtwidgets_find_font(file Roboto-${style}.ttf fonts-roboto-unhinted VTWIDGETS_FONT_DIR)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS Fonts/Roboto-${style}.ttf)
        list(APPEND fonts ${file})
    endforeach()

    # The packages call the italic of the regular weight plainly "Italic".
    vtwidgets_find_font(file Roboto-Italic.ttf fonts-roboto-unhinted VTWIDGETS_FONT_DIR)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS Fonts/Roboto-RegularItalic.ttf)
    list(APPEND fonts ${file})

    set(iconFont ${VTWIDGETS_ICON_FONT})
    if(NOT iconFont)
        vtwidgets_find_font(iconFont fontawesome-webfont.ttf fonts-font-awesome VTWIDGETS_ICON_FONT)
    elseif(NOT EXISTS ${iconFont})
        message(FATAL_ERROR "VTWIDGETS_ICON_FONT names a file that does not exist: ${iconFont}")
    endif()
    set_source_files_properties(${iconFont} PROPERTIES QT_RESOURCE_ALIAS Fonts/FontAwesome6ProReg.ttf)
    list(APPEND fonts ${iconFont})

    set(themes)
    foreach(name base purple red green blue orange)
        set(file ${PROJECT_SOURCE_DIR}/Resources/Themes/${name}.json)
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS Themes/${name}.json)
        list(APPEND themes ${file})
    endforeach()

    vtwidgets_translations(translations Source/Translations/VTWidgetsLite)

    # Uncompressed: the fonts are read at start-up, and TrueType shrinks little.
    qt_add_resources(${target} VTWidgets PREFIX /VTWidgets FILES ${themes} ${fonts} ${translations}
        OPTIONS --no-compress)
endfunction()
