# Guess engine commands against the small lists in data/engine: one case a command for what the
# CLI reads and prints (the player's Ñ is one tile, in and out); the rules' tables are the core's.
set(ENGINE_LISTS --resources ${CMAKE_CURRENT_SOURCE_DIR}/data/engine)

function(engine_cli_test name expected)
  add_test(NAME cli.engine.${name} COMMAND tessarine-cli ${ARGN} ${ENGINE_LISTS})
  set_tests_properties(cli.engine.${name} PROPERTIES PASS_REGULAR_EXPRESSION "${expected}")
endfunction()

engine_cli_test(score_crane "^green yellow yellow gray gray\n$" score C CRANE CARGO)
engine_cli_test(score_spanish "^gray yellow yellow gray\n$" score W NIÑO AÑOS)

engine_cli_test(valid_word "^valid\n$" valid C CRANE)
engine_cli_test(invalid_word "^invalid\n$" valid C CRANX)

engine_cli_test(smart_pass "^pass\nwhite white white white white\n$" smart C CRANE CARGO CRATE)
engine_cli_test(smart_gray "^fail checkGrayTiles\nwhite white white red white\n$" smart C CRANE CARGO CARGA)

engine_cli_test(hints_first_row "^3\nBRACE\nCRANE\nGRACE\n$" hints C CRANE TRADE)
engine_cli_test(hints_spanish "^2\nNIÑA\nPIÑA\n$" hints W NIÑA AÑOS)

add_test(NAME cli.engine.usage COMMAND tessarine-cli score C CRANE CARGOES ${ENGINE_LISTS})
set_tests_properties(cli.engine.usage PROPERTIES WILL_FAIL TRUE)

# "--" ends the options: a guess may start with "--".
add_test(NAME cli.engine.double_dash COMMAND tessarine-cli valid ${ENGINE_LISTS} C -- --RAN)
set_tests_properties(cli.engine.double_dash PROPERTIES PASS_REGULAR_EXPRESSION "^invalid\n$")
