# For the scripts of this folder.

# run(OUTPUT COMMAND...): the command must succeed; what it prints goes to the variable OUTPUT, and
# its messages go to OUTPUT_errors.
function(run output)
  execute_process(COMMAND ${ARGN}
    RESULT_VARIABLE status OUTPUT_VARIABLE printed ERROR_VARIABLE errors)
  if(NOT status EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\nended with ${status}\n${printed}${errors}")
  endif()
  set(${output} "${printed}" PARENT_SCOPE)
  set(${output}_errors "${errors}" PARENT_SCOPE)
endfunction()
