# The options sheet in the session runner, on the real lists: the word buttons reach types that
# the session fixture has no lists for.
function(sheet_cli_test name script expected)
  set(data ${CMAKE_CURRENT_BINARY_DIR}/sheet_cli/${name})
  add_test(NAME cli.session.sheet_${name}
           COMMAND sh -c "rm -rf '${data}' && printf '${script}' | '$<TARGET_FILE:tessarine-cli>' session --data '${data}' --today 2024-01-10 --seed 3")
  set_tests_properties(cli.session.sheet_${name} PROPERTIES ENVIRONMENT "TZ=America/New_York"
                       PASS_REGULAR_EXPRESSION "${expected}")
endfunction()

sheet_cli_test(type_persists
  "sheet open\\nsheet type G\\nsheet groups\\nsheet close\\nstate gameType\\nrestart\\nstate gameType\\n"
  "^Word Guess Game\n.*\nNumber Guess Game [*]\n  3 Digit Number [*]\n  4 Digit Number\n  5 Digit Number\n  All Numbers\n  Prime Numbers Only [*]\n.*updateSettings=true\ngameType=G\ngameType=G\n$")

sheet_cli_test(no_change
  "sheet open\\nsheet option smartMode Y\\nsheet option smartMode N\\nsheet close\\nsheet open\\nsheet words english\\nsheet close\\n"
  "^updateSettings=false\nupdateSettings=false\n$")

sheet_cli_test(words
  "sheet close\\nsheet open\\nsheet type V\\nsheet words spanish\\nsheet option EnglishTranslation N\\nsheet close\\nstate gameType\\nrestart\\nsheet open\\nsheet words english\\nsheet option wantHints Y\\nsheet close\\nstate gameType\\n"
  "^error: the sheet is not open\nerror: game type 'V' is not offered\nupdateSettings=true\ngameType=X\nupdateSettings=true\ngameType=A\n$")
