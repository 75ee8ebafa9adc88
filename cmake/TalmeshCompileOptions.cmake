# Warnings and sanitizers for this project's own targets; clients that link the library inherit neither.
add_library(talmesh_options INTERFACE)
target_compile_options(talmesh_options INTERFACE -Wall -Wextra -Wnon-virtual-dtor -Woverloaded-virtual)
# Names of other files are no warning where these are compiled in one go; that is checked where each is compiled alone.
set(together $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
target_compile_options(talmesh_options INTERFACE $<$<NOT:${together}>:-Wshadow>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(talmesh_options INTERFACE $<${together}:-Wno-subobject-linkage>)
endif()
# Functions of a shared library may be replaced when it is loaded, which keeps compilers from inlining them even
# within their own file, unless they are told that nobody does so.
target_compile_options(talmesh_options INTERFACE $<$<CONFIG:Release>:-fno-semantic-interposition>)
if(TALMESH_WARNINGS_AS_ERRORS)
  target_compile_options(talmesh_options INTERFACE -Werror)
endif()
if(TALMESH_SANITIZE)
  # The instrumented code of the standard library itself looks uninitialized to the compiler.
  target_compile_options(talmesh_options INTERFACE -Wno-maybe-uninitialized)
  target_compile_options(talmesh_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(talmesh_options INTERFACE -fsanitize=address,undefined)
endif()
