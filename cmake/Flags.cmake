# Compile options for the project's own code: warnings, and optional sanitizers.
add_library(SdkDebugDialogWarnings INTERFACE)
target_compile_options(SdkDebugDialogWarnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  $<$<BOOL:${SDKDEBUGDIALOG_WERROR}>:-Werror>)
# On 32-bit machines, files larger than 2 GB, with a large inode number or with a date after 2038 cannot be opened
# without these definitions.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_definitions(SdkDebugDialogWarnings INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()

add_library(SdkDebugDialogFlags INTERFACE)
target_link_libraries(SdkDebugDialogFlags INTERFACE SdkDebugDialogWarnings)
if(SDKDEBUGDIALOG_SANITIZE)
  target_compile_options(SdkDebugDialogFlags INTERFACE
    -fsanitize=${SDKDEBUGDIALOG_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(SdkDebugDialogFlags INTERFACE -fsanitize=${SDKDEBUGDIALOG_SANITIZE})
endif()
# The fuzzers need coverage instrumentation; the standard library's assertions find more errors.
if(SDKDEBUGDIALOG_FUZZ)
  target_compile_options(SdkDebugDialogFlags INTERFACE -fsanitize=fuzzer-no-link)
  target_compile_definitions(SdkDebugDialogFlags INTERFACE _GLIBCXX_ASSERTIONS)
endif()
