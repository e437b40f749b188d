# Headers that are slow to read and that many sources include are read once, not once for each
# source: `gtest` for the tests without a window, `qt` for whatever has to do with one. A target says
# tarvix_use_headers(TARGET gtest) after its libraries.
#
# That is a matter of speed alone. Every source includes what it needs itself, and is built without
# this, too: by -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON, as in the preset `core`, in the Debian package
# and where clang reads the sources.

set(TARVIX_STANDARD_HEADERS <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <span>
    <string> <string_view> <utility> <vector>)
set(TARVIX_QT_HEADERS <QApplication> <QComboBox> <QFrame> <QGroupBox> <QImage> <QLabel> <QLineEdit>
    <QLocale> <QMainWindow> <QPushButton> <QRadioButton> <QTabWidget>)

# tarvix_add_headers(NAME LIBRARIES libraries... HEADERS headers...)
function(tarvix_add_headers name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES;HEADERS")
    # They are compiled as part of a target, and a target has a source.
    set(source "${PROJECT_BINARY_DIR}/headers_${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "// Only the headers count.\n")
    add_library(tarvix_headers_${name} OBJECT EXCLUDE_FROM_ALL "${source}")
    target_link_libraries(tarvix_headers_${name} PRIVATE tarvix_flags ${arg_LIBRARIES})
    target_precompile_headers(tarvix_headers_${name} PRIVATE ${TARVIX_STANDARD_HEADERS}
        ${arg_HEADERS})
endfunction()

function(tarvix_use_headers target name)
    target_precompile_headers(${target} REUSE_FROM tarvix_headers_${name})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        # GCC forgets with them that the standard library is the system's, and reports writes past the
        # end of std::string's own buffer that are not there (GCC bug 105651).
        target_compile_options(${target} PRIVATE
            -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
    endif()
endfunction()

if(TARVIX_BUILD_WINDOW)
    tarvix_add_headers(qt LIBRARIES Qt6::Widgets HEADERS ${TARVIX_QT_HEADERS})
endif()
if(TARVIX_BUILD_TESTS)
    find_package(GTest REQUIRED)
    tarvix_add_headers(gtest LIBRARIES GTest::gtest HEADERS <gtest/gtest.h>)
endif()
