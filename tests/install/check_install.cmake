file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run_step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "Step failed: ${ARGN}\n${output}")
    endif()
    set(step_output "${output}" PARENT_SCOPE)
endfunction()

run_step(${CMAKE_COMMAND} --install ${ZELKON_BUILD_DIR} --prefix ${prefix})
foreach(expected
        include/tavlozelkon/config/configfile.h
        include/tavlozelkon/pages/zelkonsummarypage.h
        include/tavlozelkon/tavlozelkon_lib_export.h
        include/tavlohost/platform.h
        ${LIBDIR}/cmake/Zelkon/ZelkonConfig.cmake)
    if(NOT EXISTS ${prefix}/${expected})
        message(FATAL_ERROR "Not installed: ${expected}")
    endif()
endforeach()
file(GLOB libraries ${prefix}/${LIBDIR}/libtavlozelkon_lib.so*)
if(NOT libraries)
    message(FATAL_ERROR "libtavlozelkon_lib.so was not installed")
endif()

run_step(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${WORK_DIR}/build -DCMAKE_PREFIX_PATH=${prefix})
run_step(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
# Installed under /usr our libraries carry no RPATH, so the scratch prefix is named here.
run_step(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${prefix}/${LIBDIR} ${WORK_DIR}/build/consumer)
if(NOT step_output MATCHES "zelkon version=\"1.0\" creator=\"zelkon\" creator_version=\"2.0\"")
    message(FATAL_ERROR "The consumer printed an unexpected document:\n${step_output}")
endif()
