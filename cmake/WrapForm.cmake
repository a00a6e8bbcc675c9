# Writes HEADER, the header of the form FORM, with an include guard of our own: a host with a form of the same name gets
# a compile error instead of the wrong form. UIC is the generator.
get_filename_component(name "${FORM}" NAME_WE)
string(TOUPPER "TARNGUICOMMON_UI_${name}_H" guard)
execute_process(COMMAND ${UIC} --no-protection ${FORM} OUTPUT_VARIABLE header COMMAND_ERROR_IS_FATAL ANY)
file(WRITE "${HEADER}" "#ifndef ${guard}\n#define ${guard}\n\n${header}\n#endif // ${guard}\n")
