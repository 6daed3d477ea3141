# What every target of the house shares: warnings, floating-point rules, folders.

# The program folder: executables with Imagen/, Reportes/, Normas/ and Manual/ beside them.
set(TRABEX_PROGRAMA ${CMAKE_BINARY_DIR}/programa)

add_library(trabex_opciones INTERFACE)
if(MSVC)
    target_compile_options(trabex_opciones INTERFACE /W4 /WX /utf-8 /permissive- /fp:precise /fp:except)
else()
    # No contraction and no reassociation: results are the same bits in debug and release. And no arithmetic that
    # the code does not ask for (what a condition guards, done ahead of it): its faults would be taken for the code's.
    target_compile_options(trabex_opciones INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror
        -ffp-contract=off $<IF:$<CXX_COMPILER_ID:GNU>,-ftrapping-math,-ffp-exception-behavior=maytrap>)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # GCC 12 sees overlapping copies in std::string's concatenation where there are none (its bug 105651).
        target_compile_options(trabex_opciones INTERFACE -Wno-restrict)
    endif()
endif()
if(TRABEX_SANEAR)
    # Nothing is inlined, so that each function is the one that the linker chose: two definitions of a name show.
    target_compile_options(trabex_opciones INTERFACE
        -O1 -g1 -fno-inline -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
        -Wno-maybe-uninitialized)   # GCC loses track of std::variant under the sanitizers
    target_compile_definitions(trabex_opciones INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(trabex_opciones INTERFACE -fsanitize=address,undefined)
endif()

if(TRABEX_FUZZ)
    target_compile_options(trabex_opciones INTERFACE -fsanitize=fuzzer-no-link,address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer
        -fno-sanitize=pointer-overflow)   # RapidJSON adds to the null pointer of an empty stack
    target_link_options(trabex_opciones INTERFACE -fsanitize=address,undefined)
endif()

# trabex_sin_qt(<name> <target> [<test>]): the target belongs to sin_qt unless <name> ends in _qt; a test that doesn't
# belong is labelled con_qt.
function(trabex_sin_qt nombre objetivo)
    if(NOT nombre MATCHES "_qt$")
        add_dependencies(sin_qt ${objetivo})
    elseif(ARGN)
        set_tests_properties(${ARGN} PROPERTIES LABELS con_qt)
    endif()
endfunction()

# trabex_biblioteca(<name> [<library below> ...]): the folder's sources as the static library trabex_<name>.
# It links only what is named; tools/capas checks that its includes reach no further.
function(trabex_biblioteca nombre)
    file(GLOB fuentes CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    add_library(trabex_${nombre} STATIC ${fuentes})
    set_target_properties(trabex_${nombre} PROPERTIES LINKER_LANGUAGE CXX)
    target_include_directories(trabex_${nombre} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(trabex_${nombre} PUBLIC trabex_opciones)
    foreach(otra IN LISTS ARGN)
        target_link_libraries(trabex_${nombre} PUBLIC trabex_${otra})
    endforeach()
    trabex_sin_qt(${nombre} trabex_${nombre})
    if(nombre MATCHES "_qt$")
        trabex_compilar_antes(trabex_${nombre} VENTANAS)
    else()
        trabex_compilar_antes(trabex_${nombre})
    endif()
endfunction()

# trabex_sin_optimizar(<target>): a test's own sources, compiled once and run for a moment, are not worth optimising.
function(trabex_sin_optimizar objetivo)
    target_compile_options(${objetivo} PRIVATE $<$<CONFIG:Release>:$<IF:$<CXX_COMPILER_ID:MSVC>,/Od,-O0>>)
endfunction()

# trabex_prueba(<name> <library> ...): the folder's tests as the program and the ctest prueba_<name>.
function(trabex_prueba nombre)
    file(GLOB fuentes CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    add_executable(prueba_${nombre} ${fuentes})
    target_include_directories(prueba_${nombre} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(prueba_${nombre} PRIVATE trabex_lugares GTest::gtest GTest::gmock)
    if(NOT nombre MATCHES "_qt$")
        target_link_libraries(prueba_${nombre} PRIVATE GTest::gtest_main)
    endif()
    foreach(otra IN LISTS ARGN)
        target_link_libraries(prueba_${nombre} PRIVATE trabex_${otra})
    endforeach()
    trabex_sin_optimizar(prueba_${nombre})
    add_test(NAME prueba_${nombre} COMMAND prueba_${nombre})
    set_tests_properties(prueba_${nombre} PROPERTIES TIMEOUT 600)
    trabex_sin_qt(${nombre} prueba_${nombre} prueba_${nombre})
    if(nombre MATCHES "_qt$")
        trabex_compilar_antes(prueba_${nombre} PRUEBA VENTANAS)
    else()
        trabex_compilar_antes(prueba_${nombre} PRUEBA)
    endif()
endfunction()

# trabex_biblioteca_qt(<name> [<library below> ...]): the same for a folder named qt/, the only ones that know Qt.
function(trabex_biblioteca_qt nombre)
    trabex_biblioteca(${nombre} ${ARGN})
    set_target_properties(trabex_${nombre} PROPERTIES AUTORCC ON)
    target_compile_definitions(trabex_${nombre} PUBLIC QT_NO_KEYWORDS)
    target_link_libraries(trabex_${nombre} PUBLIC Qt6::Widgets)
endfunction()

# The toolkit and its font library keep memory to the end: leaks are looked for in tests without them.
set(TRABEX_SIN_FUGAS "ASAN_OPTIONS=detect_leaks=0")

# trabex_prueba_qt(<name> <library> ...): tests of windows, run without a display; <name> ends in _qt.
function(trabex_prueba_qt nombre)
    trabex_prueba(${nombre} ${ARGN})
    target_sources(prueba_${nombre} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/qt/main.cpp)
    target_link_libraries(prueba_${nombre} PRIVATE Qt6::Test)
    set_tests_properties(prueba_${nombre} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${TRABEX_SIN_FUGAS}")
endfunction()

# trabex_lectores(<name>): its tests read workbooks back through xlrd, which belongs to the system's Python.
function(trabex_lectores nombre)
    find_program(TRABEX_PYTHON NAMES python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)
    target_compile_definitions(prueba_${nombre} PRIVATE
        TRABEX_PYTHON="${TRABEX_PYTHON}" TRABEX_VOLCAR_XLS="${CMAKE_SOURCE_DIR}/tests/support/volcar_xls.py")
endfunction()
