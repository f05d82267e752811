# The help sheets and the options sheet from the command line.
add_test(NAME cli.help.spanish_interface_english_words COMMAND tessarine-cli help B --spanish)
set_tests_properties(cli.help.spanish_interface_english_words PROPERTIES PASS_REGULAR_EXPRESSION
  "^CÓMO JUGAR\nTessarina: \n[[]teh-sah-ree-nah[]]\n[^\n]+\nGuess the mystery word in seven tries.\nEach guess must be a valid four-letter word[^\n]+\nDespués de cada intento[^\n]+\nPar para el juego es de 5 conjeturas.\nEjemplos de sugerencias de color\n")

add_test(NAME cli.rules.unknown_type COMMAND tessarine-cli rules Ó --spanish)
set_tests_properties(cli.rules.unknown_type PROPERTIES PASS_REGULAR_EXPRESSION
  "^Tessarine Challenge Rules\nA virtual word guess game for two players: the player to guess the word in the fewest attempts wins.\nEl jugador que inicia[^\n]+\n([^\n]+\n)+Si ambos jugadores[^\n]+\n$")
