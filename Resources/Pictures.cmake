# The pictures: each drawing Resources/Pictures/FOLDER/NAME.svg becomes FOLDER/NAME.png and FOLDER/NAME@2x.png
# in the library's second resource archive.

set(VTWIDGETS_PICTURE_TOOL "" CACHE FILEPATH
    "A vtwidgets-picture that runs on this machine, for cross-compiling; empty builds it here")

function(vtwidgets_picture_tool out)
    if(VTWIDGETS_PICTURE_TOOL)
        if(NOT EXISTS ${VTWIDGETS_PICTURE_TOOL})
            message(FATAL_ERROR "VTWIDGETS_PICTURE_TOOL names a file that does not exist: ${VTWIDGETS_PICTURE_TOOL}")
        endif()
        set(${out} ${VTWIDGETS_PICTURE_TOOL} PARENT_SCOPE)
        return()
    endif()
    if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
        message(FATAL_ERROR "Cross-compiling needs a vtwidgets-picture that was built for this machine: say where "
            "it lies with -DVTWIDGETS_PICTURE_TOOL=...")
    endif()
    find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)
    add_executable(vtwidgets-picture ${PROJECT_SOURCE_DIR}/Resources/Tools/vtwidgets-picture.cpp)
    target_compile_definitions(vtwidgets-picture PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
    target_link_libraries(vtwidgets-picture PRIVATE Qt6::Gui Qt6::Svg)
    set(${out} vtwidgets-picture PARENT_SCOPE)
endfunction()

function(vtwidgets_add_pictures target)
    vtwidgets_picture_tool(tool)
    set(source ${PROJECT_SOURCE_DIR}/Resources/Pictures)
    set(pictures)
    file(GLOB_RECURSE drawings CONFIGURE_DEPENDS RELATIVE ${source} ${source}/*.svg)
    foreach(drawing ${drawings})
        string(REGEX REPLACE "\\.svg$" "" name ${drawing})
        set(base ${CMAKE_CURRENT_BINARY_DIR}/Pictures/${name})
        get_filename_component(folder ${base} DIRECTORY)
        file(MAKE_DIRECTORY ${folder})
        add_custom_command(OUTPUT ${base}.png ${base}@2x.png
            COMMAND ${tool} ${source}/${drawing} ${base}.png
            DEPENDS ${tool} ${source}/${drawing}
            COMMENT "Drawing ${name}.png" VERBATIM)
        foreach(form .png @2x.png)
            set_source_files_properties(${base}${form} PROPERTIES QT_RESOURCE_ALIAS ${name}${form})
            list(APPEND pictures ${base}${form})
        endforeach()
    endforeach()
    # Uncompressed: a PNG doesn't shrink any more.
    qt_add_resources(${target} VTWidgetsPictures PREFIX /VTWidgets FILES ${pictures} OPTIONS --no-compress)
endfunction()
