# Compile options that every target of this project shares.

# The folders of Source/Common, each of which is on the include path of the library's users.
set(VTWIDGETS_FOLDERS Controls Progress Style StyleOptions Theme ToolTips Utilities Window)

# vtwidgets_target_options(TARGET): warnings, active assertions, sanitizers.
function(vtwidgets_target_options target)
    # Assertions are part of the behaviour: a programming error stops released programs too.
    target_compile_definitions(${target} PRIVATE QT_FORCE_ASSERTS QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${VTWIDGETS_WERROR}>:/WX>)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wnon-virtual-dtor
            $<$<BOOL:${VTWIDGETS_WERROR}>:-Werror>)
    endif()
    if(VTWIDGETS_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${VTWIDGETS_SANITIZE} -fno-omit-frame-pointer
            -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${VTWIDGETS_SANITIZE})
    endif()
endfunction()

# vtwidgets_shared_library(TARGET SOURCES...): a shared library with a generated <TARGET>_EXPORT macro.
function(vtwidgets_shared_library target)
    add_library(${target} SHARED ${ARGN})
    add_library(VTWidgets::${target} ALIAS ${target})
    vtwidgets_target_options(${target})
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
endfunction()

# Qt's headers are most of what a source has to read. Read once, they halve the time of a full build. A compiler
# cache does without: it would have to be told to trust precompiled headers. A precompiled header only serves sources
# that are compiled with the same kind of position-independent code, so programs take the libraries'.
set(precompile OFF)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache")
    set(precompile ON)
endif()
option(VTWIDGETS_PRECOMPILE_HEADERS "Read Qt's headers once for all sources" ${precompile})
if(VTWIDGETS_PRECOMPILE_HEADERS)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled.cpp CONTENT "" @ONLY)
    add_library(VTWidgetsPrecompiled OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
    vtwidgets_target_options(VTWidgetsPrecompiled)
    set_target_properties(VTWidgetsPrecompiled PROPERTIES AUTOMOC OFF)
    target_link_libraries(VTWidgetsPrecompiled PRIVATE Qt6::Widgets)
    target_precompile_headers(VTWidgetsPrecompiled PRIVATE <QtWidgets/QtWidgets>)
    target_compile_options(VTWidgetsPrecompiled PRIVATE -fPIC)
endif()

# vtwidgets_precompiled(TARGET): for targets of many sources that are built with Qt Widgets.
function(vtwidgets_precompiled target)
    if(VTWIDGETS_PRECOMPILE_HEADERS)
        target_precompile_headers(${target} REUSE_FROM VTWidgetsPrecompiled)
        target_compile_options(${target} PRIVATE -fPIC)
    endif()
endfunction()
