# Fails when the calculator needs anything but the standard library.
#   cmake -DROOT=... -D"SOURCES=a.cpp|b.cpp" -DBINARY=... -P toolkit_free.cmake
# Follows the includes of SOURCES through the project: what is not a file of the project must be a
# standard header, by its name without dot and capitals. BINARY must not need a library of Qt.

cmake_minimum_required(VERSION 3.22)

string(REPLACE "|" ";" waiting "${SOURCES}")
set(seen)
set(faults)
while(waiting)
    list(POP_FRONT waiting file)
    if(file IN_LIST seen)
        continue()
    endif()
    list(APPEND seen "${file}")
    file(STRINGS "${file}" lines REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS lines)
        if(line MATCHES "include[ \t]*\"([^\"]+)\"" AND EXISTS "${ROOT}/${CMAKE_MATCH_1}")
            list(APPEND waiting "${ROOT}/${CMAKE_MATCH_1}")
        elseif(NOT line MATCHES "include[ \t]*<[a-z0-9_]+>")
            list(APPEND faults "${file}: ${line}")
        endif()
    endforeach()
endwhile()

list(LENGTH seen count)
if(count LESS 20)
    list(APPEND faults "only ${count} files found: not the whole calculator")
endif()

file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES "${BINARY}"
    RESOLVED_DEPENDENCIES_VAR libraries
    UNRESOLVED_DEPENDENCIES_VAR missing)
foreach(library IN LISTS libraries missing)
    if(library MATCHES "[Qq]t[0-9]")
        list(APPEND faults "${BINARY} needs ${library}")
    endif()
endforeach()
list(LENGTH libraries libraryCount)
if(libraryCount EQUAL 0)
    list(APPEND faults "the libraries of ${BINARY} were not found")
endif()

if(faults)
    list(JOIN faults "\n  " text)
    message(FATAL_ERROR "The calculator is not free of toolkits:\n  ${text}")
endif()
message(STATUS "${count} files include the standard library only; no Qt among ${libraryCount} libraries")
