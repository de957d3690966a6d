# Runs lupdate over a copy of CATALOGUE and fails when the copy then holds an unfinished,
# obsolete or vanished entry, or differs from the committed catalogue.
foreach(var LUPDATE CATALOGUE WORK_DIR SOURCE_DIRS)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "checkcatalogue.cmake needs -D${var}=...")
    endif()
endforeach()

get_filename_component(name ${CATALOGUE} NAME)
set(copy ${WORK_DIR}/${name})
file(MAKE_DIRECTORY ${WORK_DIR})
configure_file(${CATALOGUE} ${copy} COPYONLY)

execute_process(COMMAND ${LUPDATE} ${LUPDATE_OPTIONS} ${SOURCE_DIRS} -ts ${copy}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "lupdate failed (${result}):\n${output}")
endif()

file(READ ${copy} updated)
set(problems "")
foreach(kind unfinished obsolete vanished)
    string(REGEX MATCHALL "<translation[^>]*type=\"${kind}\"" hits "${updated}")
    list(LENGTH hits count)
    if(count GREATER 0)
        # The source texts of the entries, so that the report says what to translate.
        string(REGEX MATCHALL "<source>[^<]*</source>[ \n]*(<comment>[^<]*</comment>[ \n]*)?<translation[^>]*type=\"${kind}\"" entries "${updated}")
        set(listing "")
        foreach(entry ${entries})
            string(REGEX REPLACE "^<source>([^<]*)</source>.*" "\\1" text "${entry}")
            string(APPEND listing "\n  ${text}")
        endforeach()
        string(APPEND problems "${count} ${kind} entries:${listing}\n")
    endif()
endforeach()

file(READ ${CATALOGUE} committed)
if(NOT updated STREQUAL committed)
    string(APPEND problems "${name} is out of date with the sources: run the zelkon_lupdate target and commit the result "
        "(lupdate's view is in ${copy}).\n")
endif()

if(problems)
    message(FATAL_ERROR "${name}:\n${problems}")
endif()
message(STATUS "${name}: complete and up to date")
