# vek_framework_name(RESULT): the name of the framework behind VEK::Framework, empty where there is none.
#
# A framework is named by its target's property VEK_FRAMEWORK_NAME or else by the target that VEK::Framework is an
# alias of.
function(vek_framework_name result)
  set(name "")
  if(TARGET VEK::Framework)
    get_target_property(name VEK::Framework VEK_FRAMEWORK_NAME)
    if(NOT name)
      get_target_property(name VEK::Framework ALIASED_TARGET)
      string(REGEX REPLACE ".*::" "" name "${name}")
    endif()
    if(NOT name)
      set(name host)
    endif()
  endif()
  set(${result} "${name}" PARENT_SCOPE)
endfunction()
