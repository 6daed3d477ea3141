# Headers that most sources read, compiled once for each kind of source: a third of the time of a build from nothing.
# Not where a compiler cache is found, which does more for who builds often, and which they would spoil.

set(TRABEX_CABECERAS
    <algorithm> <array> <cmath> <cstdint> <filesystem> <functional> <map> <memory> <optional> <span> <string>
    <string_view> <utility> <variant> <vector>)
set(TRABEX_CABECERAS_DE_PRUEBA <gmock/gmock.h> <gtest/gtest.h>)
set(TRABEX_CABECERAS_DE_VENTANAS
    <QAction> <QApplication> <QDialog> <QFormLayout> <QGroupBox> <QHBoxLayout> <QHeaderView> <QKeyEvent> <QLabel>
    <QLineEdit> <QPainter> <QPushButton> <QRadioButton> <QTableView> <QTimer> <QToolBar> <QVBoxLayout>)

# trabex_compilar_antes(<target> [PRUEBA] [VENTANAS]): the target's sources read its kind's headers as compiled.
function(trabex_compilar_antes objetivo)
    if(CCACHE)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 1 de "PRUEBA;VENTANAS" "" "")
    string(JOIN "_" clase trabex_antes ${ARGN})
    if(NOT TARGET ${clase})
        file(WRITE ${CMAKE_BINARY_DIR}/antes/${clase}.cpp "")
        add_library(${clase} OBJECT ${CMAKE_BINARY_DIR}/antes/${clase}.cpp)
        target_link_libraries(${clase} PRIVATE trabex_opciones)
        target_precompile_headers(${clase} PRIVATE ${TRABEX_CABECERAS})
        if(de_PRUEBA)
            target_link_libraries(${clase} PRIVATE GTest::gtest GTest::gmock)
            target_precompile_headers(${clase} PRIVATE ${TRABEX_CABECERAS_DE_PRUEBA})
            trabex_sin_optimizar(${clase})
        endif()
        if(de_VENTANAS)
            target_link_libraries(${clase} PRIVATE Qt6::Widgets)
            target_compile_definitions(${clase} PRIVATE QT_NO_KEYWORDS)
            target_precompile_headers(${clase} PRIVATE ${TRABEX_CABECERAS_DE_VENTANAS})
        endif()
    endif()
    target_precompile_headers(${objetivo} REUSE_FROM ${clase})
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # Of the same kind as its bug 105651 (see -Wno-restrict), once headers of the system come compiled.
        target_compile_options(${objetivo} PRIVATE -Wno-stringop-overflow -Wno-array-bounds)
    endif()
endfunction()
