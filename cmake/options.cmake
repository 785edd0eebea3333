# Compiler settings that every target shares.
add_library(palx_options INTERFACE)
target_compile_options(palx_options INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                                              -Wno-deprecated-copy)
target_compile_definitions(palx_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
                                                  QT_DEPRECATED_WARNINGS)
if(NOT PALX_FUZZ) # clang gives libraries no runtime of the sanitizers, only programs
  target_link_options(palx_options INTERFACE -Wl,--no-undefined)
endif()
if(PALX_WERROR)
  target_compile_options(palx_options INTERFACE -Werror)
endif()
if(PALX_SANITIZE)
  target_compile_options(palx_options INTERFACE -fsanitize=${PALX_SANITIZE} -fno-omit-frame-pointer
                                                -fno-sanitize-recover=all)
  target_link_options(palx_options INTERFACE -fsanitize=${PALX_SANITIZE})
endif()

# For what the tests run longest: compiled without optimising it costs more than it saves under the sanitizers.
function(palx_hot TARGET)
  if(PALX_SANITIZE)
    target_compile_options(${TARGET} PRIVATE -O2)
  endif()
endfunction()
