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
