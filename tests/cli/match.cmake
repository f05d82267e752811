# The challenge key by hand, and whole matches between two match runners on the shipped lists.
add_test(NAME cli.challenge.key COMMAND tessarine-cli challenge key C 1234)
set_tests_properties(cli.challenge.key PROPERTIES
  PASS_REGULAR_EXPRESSION "^806349 8️⃣0️⃣6️⃣3️⃣4️⃣9️⃣\n$")
add_test(NAME cli.challenge.check COMMAND sh -c
  "'$<TARGET_FILE:tessarine-cli>' challenge check 691536 && '$<TARGET_FILE:tessarine-cli>' challenge check 691537")
set_tests_properties(cli.challenge.check PROPERTIES PASS_REGULAR_EXPRESSION "^valid 3 3653\ninvalid\n$")

add_test(NAME cli.match.errors COMMAND sh -c
  "printf 'bogus\\nopen Y\\nkey 12\\nchoose maybe\\nchoose found\\nstate nope\\nopen C\\nstate activeRow\\n' | '$<TARGET_FILE:tessarine-cli>' match --data '${CMAKE_CURRENT_BINARY_DIR}/match_cli/errors' --today 2024-01-10 --seed 2")
set_tests_properties(cli.match.errors PROPERTIES PASS_REGULAR_EXPRESSION
  "^error: unknown command 'bogus'\nerror: no challenge of game type 'Y'\nerror: usage: key DIGITS [(]six digits[)]\nerror: usage: choose received[|]found[|]walked[|]struck[|]missed\nerror: choice 'found' is not offered\nerror: unknown state name 'nope'\nactiveRow=0\n$")

find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
  function(match_play_test name scenario)
    add_test(NAME cli.match.${name}
             COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/cli/match_play.py
                     --cli $<TARGET_FILE:tessarine-cli> --work ${CMAKE_CURRENT_BINARY_DIR}/match_cli/${name}
                     ${ARGN} ${scenario})
    set_tests_properties(cli.match.${name} PROPERTIES ENVIRONMENT "TZ=America/New_York")
  endfunction()
  match_play_test(win_and_loss win)
  match_play_test(draw_both_found draw_both_found)
  match_play_test(three_strikes three_strikes)
  match_play_test(four_balls_then_strikeout four_balls_then_strikeout)
  match_play_test(intentional_walk_draw intentional_walk)
  match_play_test(two_lost_turns loss_by_two_walks)
  match_play_test(eighth_guess eighth_guess --type A --first JIG)
  match_play_test(saved_and_continued saved_and_continued)
  match_play_test(spanish win --spanish --type X --first PERRO)
  match_play_test(spanish_draw draw_both_found --spanish)
  match_play_test(pasted_texts eighth_guess --paste --type A --first JIG)
  match_play_test(spanish_pasted_texts win --spanish --paste --type X --first PERRO)
endif()
