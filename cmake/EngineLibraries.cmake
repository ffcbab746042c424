# SPDX-License-Identifier: GPL-3.0-or-later
# The engine once for each level of x86-64 processors, from the same sources: shared libraries of one name. The dynamic
# loader looks into glibc-hwcaps/ first and takes the highest level that the processor can run.
set(engine_levels x86-64 x86-64-v3 x86-64-v4)
set(flags_x86-64-v3 -march=x86-64-v3 -mtune=generic) # AVX2
# AVX-512, all 512 bits at a time: GCC would take 256, with which the looks take a fifth longer.
set(flags_x86-64-v4 -march=x86-64-v4 -mtune=generic -mprefer-vector-width=512)

set(engine_libraries ${CMAKE_BINARY_DIR}/lib)
set(engine_exports ${CMAKE_SOURCE_DIR}/cmake/engine-exports.map)
set(LUMORA_PRIVATE_LIBDIR ${CMAKE_INSTALL_LIBDIR}/lumora)

foreach(level IN LISTS engine_levels)
    if(level STREQUAL x86-64)
        set(library lumora_engine)
        set(folder)
    else()
        set(library lumora_engine_${level})
        set(folder /glibc-hwcaps/${level})
    endif()
    # The objects stand alone for the tests of what the library does not export.
    add_engine(engine_objects_${level} OBJECT)
    target_compile_options(engine_objects_${level} PRIVATE ${flags_${level}})
    set_target_properties(engine_objects_${level} PROPERTIES POSITION_INDEPENDENT_CODE ON)

    add_library(${library} SHARED $<TARGET_OBJECTS:engine_objects_${level}>)
    target_include_directories(${library} PUBLIC ${CMAKE_SOURCE_DIR})
    set_target_properties(${library} PROPERTIES
        OUTPUT_NAME lumora_engine LIBRARY_OUTPUT_DIRECTORY ${engine_libraries}${folder} LINK_DEPENDS ${engine_exports})
    target_link_options(${library} PRIVATE -Wl,--version-script=${engine_exports})
    install(TARGETS ${library} LIBRARY DESTINATION ${LUMORA_PRIVATE_LIBDIR}${folder})
endforeach()

# Programs link the one and are never without the others.
add_dependencies(lumora_engine lumora_engine_x86-64-v3 lumora_engine_x86-64-v4)
