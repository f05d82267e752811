# Guess engine commands against the small lists in data/engine.
set(ENGINE_LISTS --resources ${CMAKE_CURRENT_SOURCE_DIR}/data/engine)

function(engine_cli_test name expected)
  add_test(NAME cli.engine.${name} COMMAND tessarine-cli ${ARGN} ${ENGINE_LISTS})
  set_tests_properties(cli.engine.${name} PROPERTIES PASS_REGULAR_EXPRESSION "${expected}")
endfunction()

engine_cli_test(score_crane "^green yellow yellow gray gray\n$" score C CRANE CARGO)
engine_cli_test(score_spoon "^green yellow gray green orange\n$" score C SPOON SOLOS)
engine_cli_test(score_llama "^blue yellow gray gray gray\n$" score C LLAMA LATER)
engine_cli_test(score_numbers "^green gray yellow green\n$" score J 1131 1411)
engine_cli_test(score_equation "^gray green gray white yellow green\n$" score M 6X7=42 9X8=72)
engine_cli_test(score_equation_win "^green green green white green green\n$" score M 6X7=42 6X7=42)
engine_cli_test(score_spanish "^gray yellow yellow gray\n$" score W NIÑO AÑOS)

engine_cli_test(valid_word "^valid\n$" valid C CRANE)
engine_cli_test(invalid_word "^invalid\n$" valid C CRANX)
engine_cli_test(valid_prime_trimmed "^valid\n$" valid G 211)
engine_cli_test(invalid_prime "^invalid\n$" valid G 435)
engine_cli_test(valid_precedence "^valid\n$" valid S 1+2X3=7)
engine_cli_test(invalid_precedence "^invalid\n$" valid S 1+2X3=9)
engine_cli_test(valid_divide_times "^valid\n$" valid S 3/2X4=6)
engine_cli_test(invalid_remainder "^invalid\n$" valid M 17/5=3)

engine_cli_test(smart_pass "^pass\nwhite white white white white\n$" smart C CRANE CARGO CRATE)
engine_cli_test(smart_gray "^fail checkGrayTiles\nwhite white white red white\n$" smart C CRANE CARGO CARGA)
engine_cli_test(smart_yellow_dropped "^fail checkYellowTiles\nwhite red red red red\n$"
                smart C CRANE ABBEY FOLKS WHIPS TRUCE)

engine_cli_test(hints_first_row "^3\nBRACE\nCRANE\nGRACE\n$" hints C CRANE TRADE)
engine_cli_test(hints_single "^1\nCRANE\n$" hints C CRANE TRADE GRACE)
engine_cli_test(hints_spanish "^2\nNIÑA\nPIÑA\n$" hints W NIÑA AÑOS)

add_test(NAME cli.engine.usage COMMAND tessarine-cli score C CRANE CARGOES ${ENGINE_LISTS})
set_tests_properties(cli.engine.usage PROPERTIES WILL_FAIL TRUE)

# "--" ends the options: a guess may start with "--".
add_test(NAME cli.engine.double_dash COMMAND tessarine-cli valid ${ENGINE_LISTS} C -- --RAN)
set_tests_properties(cli.engine.double_dash PROPERTIES PASS_REGULAR_EXPRESSION "^invalid\n$")
