# Read by ctest before it runs: sets the folder of temporary files unless somebody has chosen one.
set(memoria /dev/shm)
if(NOT DEFINED ENV{TMPDIR} AND IS_DIRECTORY ${memoria})
    execute_process(COMMAND df -Pk ${memoria} OUTPUT_VARIABLE tabla ERROR_QUIET)
    if(tabla MATCHES "([0-9]+) +[0-9]+%" AND CMAKE_MATCH_1 GREATER 2000000)
        set(ENV{TMPDIR} ${memoria})
    endif()
endif()
