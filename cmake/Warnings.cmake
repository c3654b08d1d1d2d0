# Warnings are errors in every target of the project.
add_library(vidora_warnings INTERFACE)
target_compile_options(vidora_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    -Wcast-qual -Wimplicit-fallthrough -Wunused -Wextra-semi -fno-strict-overflow)
target_compile_definitions(vidora_warnings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(VIDORA_SANITIZE)
    add_compile_options(-fsanitize=${VIDORA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VIDORA_SANITIZE} -fno-sanitize-recover=all)
endif()
if(VIDORA_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
