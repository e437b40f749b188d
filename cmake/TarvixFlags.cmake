# What holds for every target of the project: kind of build, places, language level, warnings.
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# Every program of the tree lands in one folder, beside the logos that the windows load.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

# What the checking tools read.
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# For sources that divide by what may be zero on purpose, and judge the infinity that comes of it.
if(TARVIX_SANITIZE OR TARVIX_FUZZ)
    set(TARVIX_DIVIDES_BY_ZERO -fno-sanitize=float-divide-by-zero)
endif()

# One interface target carries the language level, the warnings, and the folder from which every
# include is written.
add_library(tarvix_flags INTERFACE)
target_include_directories(tarvix_flags INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_features(tarvix_flags INTERFACE cxx_std_20)

if(MSVC)
    # /fp:strict keeps single precision arithmetic single, step by step.
    target_compile_options(tarvix_flags INTERFACE /W4 /utf-8 /fp:strict
        $<$<BOOL:${TARVIX_WERROR}>:/WX>)
else()
    # A fused multiply-add would skip the rounding to single that the equations ask for.
    include(CheckCXXCompilerFlag)
    check_cxx_compiler_flag(-ffp-contract=off TARVIX_CAN_REFUSE_CONTRACTION)
    if(NOT TARVIX_CAN_REFUSE_CONTRACTION)
        message(FATAL_ERROR "This compiler can't be told to leave multiply and add apart"
            " (-ffp-contract=off); results would differ between machines.")
    endif()
    target_compile_options(tarvix_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wdouble-promotion
        $<$<BOOL:${TARVIX_WERROR}>:-Werror>
        -ffp-contract=off
        # GCC 12 reports overlaps in std::string's own + at -O3 that are not there (GCC bug 105329).
        $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
    if(CMAKE_UNITY_BUILD)
        # Of a test that stands in no file of its own, GCC takes the fixture for a header's.
        target_compile_options(tarvix_flags INTERFACE
            $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
    if(TARVIX_SANITIZE)
        target_compile_options(tarvix_flags INTERFACE
            -fsanitize=${TARVIX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(tarvix_flags INTERFACE -fsanitize=${TARVIX_SANITIZE})
    endif()
endif()
