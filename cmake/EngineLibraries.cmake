# The engine twice from the same sources, as shared libraries of one name: for every x86-64 processor, and for those of
# the level x86-64-v3 (AVX2). The dynamic loader looks into glibc-hwcaps/ first and takes what the processor can run.
set(engine_libraries ${CMAKE_BINARY_DIR}/lib)
set(engine_v3 glibc-hwcaps/x86-64-v3)

add_engine(lumora_engine SHARED)
add_engine(lumora_engine_v3 SHARED)
target_compile_options(lumora_engine_v3 PRIVATE -march=x86-64-v3 -mtune=generic)
set_target_properties(lumora_engine PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${engine_libraries})
set_target_properties(lumora_engine_v3 PROPERTIES
    OUTPUT_NAME lumora_engine LIBRARY_OUTPUT_DIRECTORY ${engine_libraries}/${engine_v3})

# A call inside the library stays inside: it costs no detour, and never ends in a program's own copy of an inline
# function, compiled for the lesser processor. Data stays shared: the static members are one for the program and the
# library. Clang takes -fno-semantic-interposition for data too, and inlines without it.
foreach(engine lumora_engine lumora_engine_v3)
    target_compile_options(${engine} PRIVATE -fvisibility-inlines-hidden
        $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>)
    target_link_options(${engine} PRIVATE -Wl,-Bsymbolic-functions)
endforeach()

# Programs link the one and are never without the other.
add_dependencies(lumora_engine lumora_engine_v3)

set(LUMORA_PRIVATE_LIBDIR ${CMAKE_INSTALL_LIBDIR}/lumora)
install(TARGETS lumora_engine LIBRARY DESTINATION ${LUMORA_PRIVATE_LIBDIR})
install(TARGETS lumora_engine_v3 LIBRARY DESTINATION ${LUMORA_PRIVATE_LIBDIR}/${engine_v3})
