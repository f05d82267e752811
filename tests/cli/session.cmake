# The session runner on the fixture lists, one fresh data folder per check.
set(SESSION_FIXTURE ${CMAKE_CURRENT_SOURCE_DIR}/data/session)

# An optional fourth argument names another resources folder.
function(session_cli_test name script expected)
  set(resources ${SESSION_FIXTURE})
  if(ARGC GREATER 3)
    set(resources ${ARGV3})
  endif()
  set(data ${CMAKE_CURRENT_BINARY_DIR}/session_cli/${name})
  add_test(NAME cli.session.${name}
           COMMAND sh -c "rm -rf '${data}' && printf '${script}' | '$<TARGET_FILE:tessarine-cli>' session --data '${data}' --resources '${resources}' --today 2024-01-10 --seed 3")
  set_tests_properties(cli.session.${name} PROPERTIES ENVIRONMENT "TZ=America/New_York"
                       PASS_REGULAR_EXPRESSION "${expected}")
endfunction()

session_cli_test(win
  "guess CRANE\\nguess TOWEL\\nguess WIELD\\nboard\\nstate gamesCompleted\\nstate scoreLine\\n"
  "CRANE XXXXY\nTOWEL XXYYY\nWIELD GGGGG\n[.]+ W+\n[.]+ W+\n[.]+ W+\nactiveRow=2 showKeypad=false\ngamesCompleted=1\nscoreLine=Birdie\n$")

session_cli_test(relaunch
  "guess CRANE\\nguess QQQQQ\\nkeys TOW\\nrestart\\nboard\\nstate validGuessError\\n"
  "^CRANE XXXXY\nQQQQQ CCCCC\n.*activeRow=1 showKeypad=true\nvalidGuessError=100000\n$")

session_cli_test(errors
  "bogus\\ntouch x\\nstate nope\\ndate pick 99\\noption smartMode maybe\\nstate gameType\\n"
  "^error: unknown command 'bogus'\nerror: usage: touch COLUMN\nerror: unknown state name 'nope'\nerror: no date line 99\nerror: usage: option NAME Y[|]N\ngameType=C\n$")

session_cli_test(midnight
  "clock 2024-01-10T23:50\\nguess CRANE\\nphase inactive\\nphase background\\nclock 2024-01-11T00:10\\nphase active\\nstate activeDate\\nstate disableFirst\\nstate latestDateIndex\\n"
  "^activeDate=-1\ndisableFirst=false\nlatestDateIndex=650\n$")

session_cli_test(equation
  "type M\\nkeys X\\nkeys 9X8\\nkeys 72\\nsubmit\\nboard\\n"
  "^error: key 'X' is dead here\n9X8=72 XGXWYG\n[.][.][.]=[.][.] WWWWWW\n")

session_cli_test(smart_mode
  "option smartMode Y\\nguess CRANE\\nguess GHOST\\nboard\\nstate smartModeError\\nstate activeRow\\n"
  "CRANE XXXXY\nGHOST RRRRW\n.*smartModeError=100000\nactiveRow=1\n$")

session_cli_test(hints
  "option wantHints Y\\nguess CRANE\\nstate hintsCountLine\\nguess TOWEL\\nhint\\nstate scoreLine\\nstate singleHint\\n"
  "hintsCountLine=4 available HINTS.\nscoreLine=Birdie\nsingleHint=010000\n$")

# A data folder that cannot be made is the store's fatal error, not an abort.
add_test(NAME cli.session.data_not_creatable
         COMMAND tessarine-cli session --data ${CMAKE_CURRENT_SOURCE_DIR}/CMakeLists.txt/data
                 --resources ${SESSION_FIXTURE} --today 2024-01-10)
set_tests_properties(cli.session.data_not_creatable PROPERTIES
                     PASS_REGULAR_EXPRESSION "^Fatal error: Core Data Store failed .+\n$")

# The line under the board names the refusal with the player's own entry, and goes with any change.
session_cli_test(refusal_messages
  "guess CRANE\\nguess CRANE\\nmessage\\nkeys T\\nmessage\\nclearrow\\nguess QQQQA\\nmessage\\noption EnglishTranslation N\\nclearrow\\nguess CRANE\\nmessage\\n"
  "^The word CRANE was used previously.\n\nThe word QQQQA is not a valid word.\nLa palabra CRANE se utilizó anteriormente.\n$")

session_cli_test(smart_mode_message
  "option smartMode Y\\nguess CRANE\\nguess GHOST\\nmessage\\n"
  "^The letter E is in the mystery word but in the wrong spot, but on the next guess E was not used in any position. All the cells where the E could have been placed are given the color red.\n$")

# Backspace clears the cell before an empty cursor, or the last symbol of a full row; arrows skip nothing in words.
session_cli_test(physical_keys
  "keys CRA\\nbackspace\\nboard\\nkeys ANE\\nbackspace\\nkeys E\\nright\\nright\\nright\\nleft\\nright\\nkeys I\\nboard\\n"
  "^CR[.][.][.] W+\n.*CRAIE W+\n")

session_cli_test(lost_answer
  "guess CRANE\\nguess TOWEL\\nguess BLIMP\\nguess CHUMP\\nguess GHOST\\nguess PLANT\\nscoreline\\nstate hintsCountLine\\n"
  "^Picking up\nWIELD\n(.*\n)?hintsCountLine=\n$")
