# The options sheet and the drawing choices in the session runner, on the real lists: the word
# buttons reach types that the session fixture has no lists for. Uses session.cmake's function.

session_cli_test(sheet_type_persists
  "sheet open\\nsheet type G\\nsheet groups\\nsheet close\\nstate gameType\\nrestart\\nstate gameType\\n"
  "^Word Guess Game\n.*\nNumber Guess Game [*]\n  3 Digit Number [*]\n  4 Digit Number\n  5 Digit Number\n  All Numbers\n  Prime Numbers Only [*]\n.*updateSettings=true\ngameType=G\ngameType=G\n$"
  "${TESSARINE_RESOURCES_DIR}")

session_cli_test(sheet_no_change
  "sheet open\\nsheet option smartMode Y\\nsheet option smartMode N\\nsheet close\\nsheet open\\nsheet words english\\nsheet close\\n"
  "^updateSettings=false\nupdateSettings=false\n$"
  "${TESSARINE_RESOURCES_DIR}")

session_cli_test(sheet_words
  "sheet close\\nsheet open\\nsheet type V\\nsheet words spanish\\nsheet option EnglishTranslation N\\nsheet close\\nstate gameType\\nrestart\\nsheet open\\nsheet words english\\nsheet option wantHints Y\\nsheet close\\nstate gameType\\n"
  "^error: the sheet is not open\nerror: game type 'V' is not offered\nupdateSettings=true\ngameType=X\nupdateSettings=true\ngameType=A\n$"
  "${TESSARINE_RESOURCES_DIR}")

session_cli_test(colour_blind
  "colourblind Y\\noption smartMode Y\\nrestart\\nstate colourBlind\\ncolourblind N\\nrestart\\nstate colourBlind\\n"
  "^colourBlind=true\ncolourBlind=false\n$"
  "${TESSARINE_RESOURCES_DIR}")
