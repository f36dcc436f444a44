# Compile options for the project's own code: warnings, and optional sanitizers.
add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  $<$<BOOL:${SDKDEBUGDIALOG_WERROR}>:-Werror>)
# On 32-bit machines, files larger than 2 GB, with a large inode number or with a date after 2038 cannot be opened
# without these definitions.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_definitions(project_options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()
if(SDKDEBUGDIALOG_SANITIZE)
  target_compile_options(project_options INTERFACE
    -fsanitize=${SDKDEBUGDIALOG_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(project_options INTERFACE -fsanitize=${SDKDEBUGDIALOG_SANITIZE})
endif()
# The fuzzers need coverage instrumentation; the standard library's assertions find more errors.
if(SDKDEBUGDIALOG_FUZZ)
  target_compile_options(project_options INTERFACE -fsanitize=fuzzer-no-link)
  target_compile_definitions(project_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
